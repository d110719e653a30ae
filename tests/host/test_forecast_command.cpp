// autojobverw --vorschau run as users run it, in Berlin's time: the lines, their order, the
// jobs and schedules left out, and the refusal of bad arguments.
#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include "tests/host/ProgramRun.h"

namespace {

using Ergebnis = ProgramRun;

class ForecastCommandTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dir_.isValid());
        db_ = dir_.filePath(QStringLiteral("vorschau.sqlite"));
        ASSERT_EQ(run({QStringLiteral("--summary")}).exitCode, 0);
        {
            QSqlDatabase sql = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kVerbindung);
            sql.setDatabaseName(db_);
            ASSERT_TRUE(sql.open());
            exec(QStringLiteral("delete from tAutoJobSchedule"));
            exec(QStringLiteral("update tAutoJobJob set Aktiviert = 1"));
            QSqlQuery q(sql);
            ASSERT_TRUE(
                q.exec(QStringLiteral("select idAutoJob from tAutoJobJob order by idAutoJob")));
            for (int k = 0; k < 3 && q.next(); ++k) {
                jobs_ << q.value(0).toLongLong();
            }
            ASSERT_EQ(jobs_.size(), 3);
            exec(QStringLiteral("update tAutoJobJob set Aktiviert = 0 where idAutoJob = %1")
                     .arg(jobs_[1]));
            // Weekly on Sunday at 02:30, for the third job first, then twice for the first.
            sonntagC_ = insert(jobs_[2], 1, 8, 1, 1, 0, 1, 1, 23000, 235959, "2026-03-01");
            sonntagA_ = insert(jobs_[0], 1, 8, 1, 1, 0, 1, 1, 23000, 235959, "2026-03-01");
            monatA_ = insert(jobs_[0], 1, 16, 31, 1, 0, 1, 1, 223000, 235959, "2026-01-01");
            sonntagA2_ = insert(jobs_[0], 1, 8, 1, 1, 0, 1, 1, 23000, 235959, "2026-03-01");
            // Left out: a schedule that is not active, and one of a job that is not.
            insert(jobs_[0], 0, 4, 1, 0, 0, 1, 1, 120000, 235959, "2026-01-01");
            insert(jobs_[1], 1, 4, 1, 0, 0, 1, 1, 120000, 235959, "2026-01-01");
        }
        QSqlDatabase::removeDatabase(kVerbindung);
    }

    void exec(const QString& statement) {
        QSqlQuery q(QSqlDatabase::database(kVerbindung));
        ASSERT_TRUE(q.exec(statement)) << q.lastError().text().toStdString();
    }

    qlonglong insert(qlonglong job, int aktiv, int typ, int intervall, int faktor, int relativ,
                     int einheit, int tagesIntervall, int start, int ende, const char* ab) {
        QSqlQuery q(QSqlDatabase::database(kVerbindung));
        q.prepare(QStringLiteral(
            "insert into tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
            "FrequencyInterval, FrequencyRecurrenceFactor, FrequencyRelativeInterval, "
            "FrequencySubDay, FrequencySubDayinterval, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
            "ActiveStartDate, ActiveEndDate) values (?, 'Zeitplan', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
            "'9999-12-31 00:00:00')"));
        for (const QVariant& v :
             QVariantList{job, aktiv, typ, intervall, faktor, relativ, einheit, tagesIntervall,
                          start, ende, QString::fromLatin1(ab) + QStringLiteral(" 00:00:00")}) {
            q.addBindValue(v);
        }
        EXPECT_TRUE(q.exec()) << q.lastError().text().toStdString();
        return q.lastInsertId().toLongLong();
    }

    Ergebnis run(const QStringList& arguments) {
        QProcessEnvironment env;
        env.insert(QStringLiteral("TZ"), QStringLiteral("Europe/Berlin"));
        env.insert(QStringLiteral("HOME"), dir_.path());
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_.path());
        return runProgram(QStringLiteral(AJV_PROGRAM),
                          QStringList{QStringLiteral("--db"), db_} + arguments, env);
    }

    QString line(const char* when, qlonglong job, qlonglong schedule) const {
        return QStringLiteral("%1\t%2\t%3\n").arg(QString::fromLatin1(when)).arg(job).arg(schedule);
    }

    static inline const QString kVerbindung = QStringLiteral("vorschau-test");
    QTemporaryDir dir_;
    QString db_;
    QList<qlonglong> jobs_;
    qlonglong sonntagA_ = 0, sonntagA2_ = 0, sonntagC_ = 0, monatA_ = 0;
};

TEST_F(ForecastCommandTest, WeeklyAcrossTheSpringChangeAndMonthlyOnDay31) {
    const Ergebnis r = run({QStringLiteral("--vorschau"), QStringLiteral("--von"),
                            QStringLiteral("2026-03-22 02:30:00"), QStringLiteral("--bis"),
                            QStringLiteral("2026-05-01 00:00:00")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.err, QString());
    QString want;
    for (const char* sunday :
         {"2026-03-22 02:30:00", "2026-03-29 03:00:00", "2026-04-05 02:30:00",
          "2026-04-12 02:30:00", "2026-04-19 02:30:00", "2026-04-26 02:30:00"}) {
        want += line(sunday, jobs_[0], sonntagA_) + line(sunday, jobs_[0], sonntagA2_) +
                line(sunday, jobs_[2], sonntagC_);
        if (QByteArray(sunday).startsWith("2026-03-29")) {
            want += line("2026-03-31 22:30:00", jobs_[0], monatA_);
        }
        if (QByteArray(sunday).startsWith("2026-04-26")) {
            want += line("2026-04-30 22:30:00", jobs_[0], monatA_);
        }
    }
    EXPECT_EQ(r.out, want);
}

TEST_F(ForecastCommandTest, OneJobAndTheDefaultOfSevenDays) {
    const Ergebnis r =
        run({QStringLiteral("--vorschau"), QStringLiteral("--auftrag"), QString::number(jobs_[0]),
             QStringLiteral("--von"), QStringLiteral("2026-03-29 03:00:01")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, line("2026-03-31 22:30:00", jobs_[0], monatA_) +
                         line("2026-04-05 02:30:00", jobs_[0], sonntagA_) +
                         line("2026-04-05 02:30:00", jobs_[0], sonntagA2_));
    // A job that is not active has no starts.
    const Ergebnis aus =
        run({QStringLiteral("--vorschau"), QStringLiteral("--auftrag"), QString::number(jobs_[1]),
             QStringLiteral("--von"), QStringLiteral("2026-03-29 00:00:00")});
    EXPECT_EQ(aus.exitCode, 0);
    EXPECT_EQ(aus.out, QString());
}

TEST_F(ForecastCommandTest, BadArgumentsAreRefusedOnStandardError) {
    const struct {
        QStringList arguments;
        QString message;
    } faelle[] = {
        {{QStringLiteral("--vorschau"), QStringLiteral("--von"), QStringLiteral("29.03.2026")},
         QStringLiteral("--von: \"29.03.2026\" ist kein gültiger Zeitpunkt (Form: yyyy-MM-dd "
                        "HH:mm:ss).\n")},
        {{QStringLiteral("--vorschau"), QStringLiteral("--bis"),
          QStringLiteral("2026-02-30 00:00:00")},
         QStringLiteral("--bis: \"2026-02-30 00:00:00\" ist kein gültiger Zeitpunkt (Form: "
                        "yyyy-MM-dd HH:mm:ss).\n")},
        {{QStringLiteral("--vorschau"), QStringLiteral("--von"),
          QStringLiteral("2026-03-02 00:00:00"), QStringLiteral("--bis"),
          QStringLiteral("2026-03-01 00:00:00")},
         QStringLiteral("--bis liegt vor --von.\n")},
        {{QStringLiteral("--vorschau"), QStringLiteral("--auftrag"), QStringLiteral("x1")},
         QStringLiteral("--auftrag: \"x1\" ist keine Auftragsnummer.\n")},
        {{QStringLiteral("--vorschau"), QStringLiteral("--auftrag"), QStringLiteral("999999")},
         QStringLiteral("Den Auftrag 999999 gibt es nicht.\n")},
        {{QStringLiteral("--von"), QStringLiteral("2026-03-01 00:00:00")},
         QStringLiteral("autojobverw: --von, --bis und --auftrag gelten nur mit --vorschau.\n")},
    };
    for (const auto& f : faelle) {
        const Ergebnis r = run(f.arguments);
        EXPECT_EQ(r.exitCode, 1) << f.arguments.join(u' ').toStdString();
        EXPECT_EQ(r.out, QString());
        EXPECT_EQ(r.err, f.message);
    }
}

}  // namespace
