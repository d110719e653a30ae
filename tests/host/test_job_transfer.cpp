// Export and import of job definitions on the demo database: the document, its round trip,
// each rule of the check and the name clash.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlQuery>

#include "host/JobTransfer.h"
#include "tests/host/ProgramFixture.h"

using namespace JobTransfer;

namespace {

QJsonObject parse(const QByteArray& bytes) {
    return QJsonDocument::fromJson(bytes).object();
}

QByteArray bytesOf(const QJsonObject& o) {
    return QJsonDocument(o).toJson();
}

}  // namespace

class JobTransferTest : public ProgramFixture {
  protected:
    QString connection() { return program_->database().connectionName(); }
    QByteArray exportAll() { return exportJobs(program_->database(), {}); }
    QString jobCount() { return scalar(QStringLiteral("select count(*) from tAutoJobJob")); }
    void deleteAllJobs() {
        QSqlQuery q(QSqlDatabase::database(connection(), false));
        ASSERT_TRUE(q.exec(QStringLiteral("delete from tAutoJobSchedule")));
        ASSERT_TRUE(q.exec(QStringLiteral("delete from tAutoJobJob")));
    }

    // One job of the demo document with one value changed, as a whole document.
    QByteArray withJob(const QString& jobName, const std::function<void(QJsonObject&)>& change) {
        QJsonObject doc = parse(exportAll());
        QJsonArray kept;
        for (const QJsonValue& v : doc[QStringLiteral("auftraege")].toArray()) {
            QJsonObject job = v.toObject();
            if (job[QStringLiteral("name")].toString() == jobName) {
                change(job);
                kept.append(job);
            }
        }
        doc[QStringLiteral("auftraege")] = kept;
        return bytesOf(doc);
    }
    QStringList problemsOf(const QByteArray& document) {
        const QString before = jobCount();
        const ImportResult r = importJobs(program_->database(), document, 1);
        EXPECT_FALSE(r.written);
        EXPECT_EQ(jobCount(), before);
        return r.problems;
    }
};

TEST_F(JobTransferTest, RoundTripOfEveryJobTypeAndScheduleKindGivesTheSameDocument) {
    const QByteArray first = exportAll();
    const QJsonObject doc = parse(first);
    EXPECT_EQ(doc[QStringLiteral("format")].toString(), kFormat);
    EXPECT_EQ(doc[QStringLiteral("version")].toInt(), 1);
    QSet<int> types;
    QSet<int> kinds;
    QSet<int> units;
    for (const QJsonValue& j : doc[QStringLiteral("auftraege")].toArray()) {
        types << j[QStringLiteral("auftragsart")].toInt();
        for (const QJsonValue& s : j[QStringLiteral("zeitplaene")].toArray()) {
            kinds << s[QStringLiteral("typ")].toInt();
            units << s[QStringLiteral("tagesEinheit")].toInt();
        }
    }
    EXPECT_EQ(types, (QSet<int>{4, 5, 17, 18, 20, 21, 28, 30, 99}));
    EXPECT_EQ(kinds, (QSet<int>{1, 4, 8, 16, 32}));
    EXPECT_EQ(units, (QSet<int>{1, 4, 8}));
    // No ids and no archive passwords travel.
    EXPECT_FALSE(first.contains("idAutoJob"));
    EXPECT_FALSE(first.contains("4323032332679686362714"));
    EXPECT_FALSE(first.contains("1376e65766cf2705"));
    // The demo data dates its schedules from the day it was made: the once-only schedule
    // keeps its day and time through the round trip, whatever day that is.
    const QString onceOnly = QStringLiteral(
        "select ActiveStartTimeOfDay || ' ' || ActiveStartDate from tAutoJobSchedule s join "
        "tAutoJobJob j on j.idAutoJob = s.idAutoJob where j.Name = 'Buchungen Bäckerei Huber "
        "(CSV)' and s.Name = 'Zeitplan02'");
    const QString onceOnlyBefore = scalar(onceOnly);
    ASSERT_TRUE(onceOnlyBefore.startsWith(QStringLiteral("143000 ")))
        << onceOnlyBefore.toStdString();
    ASSERT_TRUE(onceOnlyBefore.endsWith(QStringLiteral(" 00:00:00")))
        << onceOnlyBefore.toStdString();

    deleteAllJobs();
    const ImportResult r = importJobs(program_->database(), first, 2);
    ASSERT_TRUE(r.written) << r.problems.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(r.imported.size(), 14);
    EXPECT_EQ(r.nameClashes, QStringList());
    EXPECT_EQ(r.needPassword, (QStringList{QStringLiteral("Scan-Dokumente Kanzlei Brandt"),
                                           QStringLiteral("Verschlagwortung aller Belege"),
                                           QStringLiteral("Scan-Dokumente Bäckerei Huber")}));
    EXPECT_EQ(QString::fromUtf8(exportAll()), QString::fromUtf8(first));

    // Stored as the editor keeps them: the archive login's staff id, an empty password,
    // the client's id, the composed extra information; the importer as the last editor.
    EXPECT_EQ(scalar(QStringLiteral("select MTAPath || '/' || BackupPath || '/' || Ps_Id_Mandant "
                                    "|| '/' || Ps_Id_Mitarbeiter from tAutoJobJob where Name = "
                                    "'Scan-Dokumente Kanzlei Brandt'")),
              QStringLiteral("2//5/2"));
    EXPECT_EQ(scalar(QStringLiteral("select Zusatzinfo from tAutoJobJob where Name = "
                                    "'Nivora Händlerdaten Elektro Sommer'")),
              QStringLiteral("1"));
    EXPECT_EQ(scalar(onceOnly), onceOnlyBefore);
}

TEST_F(JobTransferTest, SelectedJobsOnlyInTheOrderOfTheirIds) {
    const QJsonArray jobs =
        parse(exportJobs(program_->database(), {9, 2}))[QStringLiteral("auftraege")].toArray();
    ASSERT_EQ(jobs.size(), 2);
    EXPECT_EQ(jobs[0][QStringLiteral("name")].toString(),
              QStringLiteral("Lieferanten Autohaus Lindner"));
    EXPECT_EQ(jobs[1][QStringLiteral("name")].toString(),
              QStringLiteral("Verschlagwortung aller Belege"));
}

// 100 characters beyond 16 bits are 100 characters, and tab, line feed and carriage return
// are text; a name twice in the document is told as a name that exists already, once.
TEST_F(JobTransferTest, TheLimitsCountCharactersAndANameTwiceInTheDocumentIsTold) {
    const QString emoji = QString::fromUtf8("😀").repeated(100);
    QJsonObject doc =
        parse(withJob(QStringLiteral("Lieferanten Autohaus Lindner"), [&](QJsonObject& j) {
            j[QStringLiteral("name")] = emoji;
            j[QStringLiteral("beschreibung")] = QStringLiteral("a\tb\r\nc");
        }));
    QJsonArray twice = doc[QStringLiteral("auftraege")].toArray();
    twice.append(twice.at(0));
    doc[QStringLiteral("auftraege")] = twice;
    deleteAllJobs();
    const ImportResult r = importJobs(program_->database(), bytesOf(doc), 1);
    ASSERT_TRUE(r.written) << r.problems.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(r.imported, (QStringList{emoji, emoji}));
    EXPECT_EQ(r.nameClashes, QStringList{emoji});
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob where Name = '%1' and "
                                    "Beschreibung = 'a' || char(9) || 'b' || char(13, 10) || 'c'")
                         .arg(emoji)),
              QStringLiteral("2"));
}

TEST_F(JobTransferTest, ANameThatExistsIsAddedAsANewJobAndNamedInTheReport) {
    const QByteArray doc = exportJobs(program_->database(), {2});
    const ImportResult r = importJobs(program_->database(), doc, 1);
    ASSERT_TRUE(r.written);
    EXPECT_EQ(r.nameClashes, QStringList{QStringLiteral("Lieferanten Autohaus Lindner")});
    EXPECT_EQ(jobCount(), QStringLiteral("15"));
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob where Name = "
                                    "'Lieferanten Autohaus Lindner'")),
              QStringLiteral("2"));
    // The import is journaled as such, the new job and each of its schedules; the demo data
    // before it is no change.
    const QString neu = QStringLiteral("(select max(idAutoJob) from tAutoJobJob)");
    EXPECT_EQ(
        scalar(QStringLiteral("select count(*) from tAutoJobJournal where Anlass = 'Import' "
                              "and Art = 1 and Vorher is null and idAutoJob = ") +
               neu),
        scalar(QStringLiteral("select 1 + count(*) from tAutoJobSchedule where idAutoJob = ") +
               neu));
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJournal where Anlass <> "
                                    "'Import' or idAutoJob <> ") +
                     neu),
              QStringLiteral("0"));
    EXPECT_EQ(importReport(r),
              QStringLiteral("1 Auftrag importiert.\n\n"
                             "Diese Namen gab es schon; die Aufträge wurden als neue Aufträge "
                             "angelegt:\n  \"Lieferanten Autohaus Lindner\"\n\n"
                             "Importiert:\n  \"Lieferanten Autohaus Lindner\""));
}

// A report of thousands of jobs fits a message box: each list is cut after the lines asked
// for and says how many more there are; the command line's report keeps them all.
TEST_F(JobTransferTest, TheReportOfManyJobsShowsTheSummaryFirstAndShortensEachList) {
    ImportResult r;
    r.written = true;
    for (int i = 1; i <= 7000; ++i) {
        r.imported << QStringLiteral("Auftrag %1").arg(i);
    }
    r.nameClashes = r.imported.mid(0, 12);
    r.needPassword = r.imported.mid(100, 2);
    EXPECT_EQ(importReport(r, 3),
              QStringLiteral("7000 Aufträge importiert.\n\n"
                             "Diese Namen gab es schon; die Aufträge wurden als neue Aufträge "
                             "angelegt:\n  \"Auftrag 1\"\n  \"Auftrag 2\"\n  \"Auftrag 3\"\n"
                             "  … und 9 weitere\n\n"
                             "Kennwörter werden nicht übertragen. Bitte das Archivkennwort "
                             "eintragen bei:\n  \"Auftrag 101\"\n  \"Auftrag 102\"\n\n"
                             "Importiert:\n  \"Auftrag 1\"\n  \"Auftrag 2\"\n  \"Auftrag 3\"\n"
                             "  … und 6997 weitere"));
    // The summary, then each list with its blank line and heading, every name listed.
    EXPECT_EQ(importReport(r).split(QLatin1Char('\n')).size(), 1 + (2 + 12) + (2 + 2) + (2 + 7000));

    ImportResult failed;
    failed.problems = QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    EXPECT_EQ(importReport(failed, 2),
              QStringLiteral("Es wurde kein Auftrag importiert:\na\nb\n  … und 1 weitere"));
}

TEST_F(JobTransferTest, TheDocumentItselfMustBeJsonOfThisFormatAndVersion) {
    EXPECT_EQ(problemsOf("{ kein json"),
              QStringList{QStringLiteral("Das Dokument ist kein gültiges JSON: Nicht "
                                         "abgeschlossenes Objekt (an Stelle 3).")})
        << "Qt's own words for the parse error, in Qt's German";
    QJsonObject doc = parse(exportAll());
    doc[QStringLiteral("format")] = QStringLiteral("etwas anderes");
    EXPECT_EQ(problemsOf(bytesOf(doc)),
              QStringList{QStringLiteral("Das Dokument enthält keine Auftragsdefinitionen "
                                         "(\"format\" ist nicht \"autojobverw-auftraege\").")});
    doc = parse(exportAll());
    doc[QStringLiteral("version")] = 2;
    EXPECT_EQ(problemsOf(bytesOf(doc)),
              QStringList{QStringLiteral("Die Version 2 des Dokuments wird nicht unterstützt "
                                         "(erwartet: 1).")});
    doc = parse(exportAll());
    doc.remove(QStringLiteral("auftraege"));
    EXPECT_EQ(problemsOf(bytesOf(doc)),
              QStringList{QStringLiteral("Das Dokument hat keine Liste \"auftraege\".")});
}

TEST_F(JobTransferTest, EveryRuleOfAJobIsToldWithTheJobsName) {
    const QString lindner = QStringLiteral("Lieferanten Autohaus Lindner");
    struct Case {
        std::function<void(QJsonObject&)> change;
        QString problem;
    };
    const QList<Case> cases{
        {[](QJsonObject& j) { j.remove(QStringLiteral("aktiviert")); },
         QStringLiteral("Auftrag \"%1\": \"aktiviert\" fehlt.")},
        {[](QJsonObject& j) { j[QStringLiteral("aktiviert")] = 1; },
         QStringLiteral("Auftrag \"%1\": \"aktiviert\" muss true oder false sein.")},
        {[](QJsonObject& j) { j[QStringLiteral("beschreibung")] = 5; },
         QStringLiteral("Auftrag \"%1\": \"beschreibung\" muss ein Text sein.")},
        {[](QJsonObject& j) { j[QStringLiteral("auftragsart")] = 7; },
         QStringLiteral("Auftrag \"%1\": \"auftragsart\" hat den unbekannten Wert 7.")},
        {[](QJsonObject& j) { j[QStringLiteral("auftragsart")] = 4.5; },
         QStringLiteral("Auftrag \"%1\": \"auftragsart\" muss eine ganze Zahl sein.")},
        {[](QJsonObject& j) { j[QStringLiteral("mandKanz")] = 6; },
         QStringLiteral("Auftrag \"%1\": \"mandKanz\" muss zwischen 1 und 5 liegen, nicht 6.")},
        {[](QJsonObject& j) { j[QStringLiteral("mandant")] = QStringLiteral("99999"); },
         QStringLiteral("Auftrag \"%1\": Den Mandanten \"99999\" gibt es in dieser Datenbank "
                        "nicht.")},
        {[](QJsonObject& j) { j[QStringLiteral("mandKanz")] = 3; },
         QStringLiteral("Auftrag \"%1\": \"mandant\" muss leer sein, wenn der Auftrag für alle "
                        "gilt.")},
        {[](QJsonObject& j) { j[QStringLiteral("mitarbeiter")] = QStringLiteral("Niemand"); },
         QStringLiteral("Auftrag \"%1\": Den Mitarbeiter \"Niemand\" gibt es in dieser "
                        "Datenbank nicht.")},
        {[](QJsonObject& j) { j.remove(QStringLiteral("zeitplaene")); },
         QStringLiteral("Auftrag \"%1\": \"zeitplaene\" fehlt.")},
        // Control characters would be cut off or refused by a database: never stored.
        {[](QJsonObject& j) {
             j[QStringLiteral("beschreibung")] =
                 QStringLiteral("vorher") + QChar(0) + QStringLiteral("nachher");
         },
         QStringLiteral("Auftrag \"%1\": \"beschreibung\" enthält das Steuerzeichen U+0000, "
                        "das nicht gespeichert werden kann.")},
        {[](QJsonObject& j) { j[QStringLiteral("verzeichnis3")] = QStringLiteral("C:\x1b"); },
         QStringLiteral("Auftrag \"%1\": \"verzeichnis3\" enthält das Steuerzeichen U+001B, "
                        "das nicht gespeichert werden kann.")},
        // Characters as the server counts them: 101 characters beyond 16 bits are too many.
        {[](QJsonObject& j) {
             j[QStringLiteral("fremdDateifilter")] = QString::fromUtf8("😀").repeated(101);
         },
         QStringLiteral("Auftrag \"%1\": \"fremdDateifilter\" ist länger als 100 Zeichen.")},
    };
    for (const Case& c : cases) {
        const QString expected = c.problem.arg(lindner);
        SCOPED_TRACE(expected.toStdString());
        EXPECT_EQ(problemsOf(withJob(lindner, c.change)), QStringList{expected});
    }
    EXPECT_EQ(
        problemsOf(withJob(lindner, [](QJsonObject& j) { j[QStringLiteral("name")] = QString(); })),
        QStringList{QStringLiteral("Auftrag Nr. 1: \"name\" darf nicht leer sein.")});
}

TEST_F(JobTransferTest, TypeRulesAndPasswordsThatMustNotTravel) {
    EXPECT_EQ(
        problemsOf(withJob(QStringLiteral("Nivora Händlerdaten Elektro Sommer"),
                           [](QJsonObject& j) { j[QStringLiteral("haendlerSchluessel")] = 4; })),
        QStringList{QStringLiteral("Auftrag \"Nivora Händlerdaten Elektro Sommer\": "
                                   "\"haendlerSchluessel\" muss zwischen 1 und 3 liegen, "
                                   "nicht 4.")});
    EXPECT_EQ(problemsOf(withJob(QStringLiteral("Scan-Dokumente Kanzlei Brandt"),
                                 [](QJsonObject& j) {
                                     j[QStringLiteral("verzeichnis2")] = QStringLiteral("geheim");
                                 })),
              QStringList{QStringLiteral("Auftrag \"Scan-Dokumente Kanzlei Brandt\": "
                                         "\"verzeichnis2\" ist hier nicht erlaubt: Kennwörter "
                                         "werden nicht übertragen.")});
}

TEST_F(JobTransferTest, EveryRuleOfAScheduleIsToldWithJobAndScheduleName) {
    const QString job = QStringLiteral("Buchungen Bäckerei Huber (CSV)");  // daily, then once
    // The once-only schedule starts a few days after the day the demo data was made: an end
    // a month after its start is later, and still not its start.
    QString onceStart;
    withJob(job, [&](QJsonObject& j) {
        onceStart = j[QStringLiteral("zeitplaene")][1][QStringLiteral("startDatum")].toString();
    });
    const QDate start = QDate::fromString(onceStart, Qt::ISODate);
    ASSERT_TRUE(start.isValid()) << onceStart.toStdString();
    const QString laterEnd = start.addMonths(1).toString(Qt::ISODate);
    struct Case {
        int schedule;
        QString key;
        QJsonValue value;
        QString problem;
    };
    const QList<Case> cases{
        {0, QStringLiteral("typ"), 2, QStringLiteral("\"typ\" hat den unbekannten Wert 2.")},
        {0, QStringLiteral("intervall"), 367,
         QStringLiteral("\"intervall\" muss zwischen 1 und 366 liegen, nicht 367.")},
        {0, QStringLiteral("wiederholung"), 1,
         QStringLiteral("\"wiederholung\" muss zwischen 0 und 0 liegen, nicht 1.")},
        {0, QStringLiteral("tagesEinheit"), 2,
         QStringLiteral("\"tagesEinheit\" hat den unbekannten Wert 2.")},
        {0, QStringLiteral("tagesIntervall"), 1441,
         QStringLiteral("\"tagesIntervall\" muss zwischen 1 und 1440 liegen, nicht 1441.")},
        {0, QStringLiteral("startZeit"), QStringLiteral("24:00:00"),
         QStringLiteral("\"startZeit\" ist keine Uhrzeit (HH:MM:SS): \"24:00:00\".")},
        {0, QStringLiteral("endZeit"), QStringLiteral("06:00:00"),
         QStringLiteral("\"endZeit\" liegt vor \"startZeit\".")},
        {0, QStringLiteral("startDatum"), QStringLiteral("2026-02-30"),
         QStringLiteral("\"startDatum\" ist kein Datum (JJJJ-MM-TT): \"2026-02-30\".")},
        {0, QStringLiteral("endDatum"), QStringLiteral("2020-01-01"),
         QStringLiteral("\"endDatum\" liegt vor \"startDatum\".")},
        {1, QStringLiteral("endDatum"), laterEnd,
         QStringLiteral("ein einmaliger Zeitplan endet an seinem \"startDatum\".")},
        {1, QStringLiteral("aktiviert"), QStringLiteral("ja"),
         QStringLiteral("\"aktiviert\" muss true oder false sein.")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.problem.toStdString());
        const QByteArray doc = withJob(job, [&](QJsonObject& j) {
            QJsonArray schedules = j[QStringLiteral("zeitplaene")].toArray();
            QJsonObject s = schedules[c.schedule].toObject();
            s[c.key] = c.value;
            schedules[c.schedule] = s;
            j[QStringLiteral("zeitplaene")] = schedules;
        });
        EXPECT_EQ(problemsOf(doc),
                  QStringList{QStringLiteral("Auftrag \"%1\", Zeitplan \"Zeitplan0%2\": %3")
                                  .arg(job)
                                  .arg(c.schedule + 1)
                                  .arg(c.problem)});
    }
}

TEST_F(JobTransferTest, AllProblemsOfAllJobsAreToldAndNothingIsWritten) {
    QJsonObject doc = parse(exportAll());
    QJsonArray jobs = doc[QStringLiteral("auftraege")].toArray();
    QJsonObject first = jobs[0].toObject();
    first[QStringLiteral("mandKanz")] = 0;
    jobs[0] = first;
    QJsonObject last = jobs[13].toObject();
    last.remove(QStringLiteral("einzelLog"));
    jobs[13] = last;
    doc[QStringLiteral("auftraege")] = jobs;
    const ImportResult r = importJobs(program_->database(), bytesOf(doc), 1);
    EXPECT_FALSE(r.written);
    EXPECT_EQ(r.problems,
              (QStringList{QStringLiteral("Auftrag \"Kunden Bäckerei Huber\": \"mandKanz\" muss "
                                          "zwischen 1 und 5 liegen, nicht 0."),
                           QStringLiteral("Auftrag \"Kunden Kanzlei Neumann\": \"einzelLog\" "
                                          "fehlt.")}));
    EXPECT_EQ(importReport(r).section(QLatin1Char('\n'), 0, 0),
              QStringLiteral("Es wurde kein Auftrag importiert:"));
    EXPECT_EQ(jobCount(), QStringLiteral("14"));
}

namespace {

// Every column of the rows a query finds, with its stored kind: the ids left out and the
// moments by their kind and form only, since the two writes happen at different times.
QStringList storedRows(const QString& connection, const QString& table, const QString& where) {
    const QSqlDatabase db = QSqlDatabase::database(connection, false);
    QSqlQuery info(db);
    EXPECT_TRUE(info.exec(QStringLiteral("pragma table_info(%1)").arg(table)));
    QStringList parts;
    while (info.next()) {
        const QString column = info.value(1).toString();
        if (column.startsWith(QStringLiteral("idAutoJob"))) {
            continue;
        }
        const bool moment = column == u"Erstellt" || column == u"LetzteAenderung";
        parts << QStringLiteral("'%1=' || typeof(%1) || ':' || %2")
                     .arg(column, moment ? QStringLiteral("length(%1)").arg(column)
                                         : QStringLiteral("ifnull(quote(%1), 'NULL')").arg(column));
    }
    QSqlQuery rows(db);
    EXPECT_TRUE(rows.exec(QStringLiteral("select %1 from %2 where %3 order by 1")
                              .arg(parts.join(QStringLiteral(" || ' ' || ")), table, where)));
    QStringList result;
    while (rows.next()) {
        result << rows.value(0).toString();
    }
    return result;
}

}  // namespace

// The import writes through the editor's own writer: a job pasted in the list and the same
// job imported from its exported definition are stored alike, column by column, with their
// schedules.
TEST_F(JobTransferTest, AnImportedJobIsStoredAsThePastedCopyOfTheSameJob) {
    const QString name = QStringLiteral("Buchungen Bäckerei Huber (CSV)");
    const QByteArray document = exportJobs(program_->database(), {3});
    real_input::clickRow(list(), real_input::rowShowing(list(), QStringLiteral("Name"), name));
    chooseMenu(QStringLiteral("Bearbeiten"), QStringLiteral("Kopieren"));
    chooseMenu(QStringLiteral("Bearbeiten"), QStringLiteral("Einfügen"));
    const QString pasted = scalar(QStringLiteral("select max(idAutoJob) from tAutoJobJob"));
    ASSERT_EQ(pasted, QStringLiteral("15"));

    const ImportResult r = importJobs(program_->database(), document, config_->mitId);
    ASSERT_TRUE(r.written) << r.problems.join(QLatin1Char('\n')).toStdString();
    const QString imported = scalar(QStringLiteral("select max(idAutoJob) from tAutoJobJob"));
    ASSERT_EQ(imported, QStringLiteral("16"));

    const auto jobRow = [&](const QString& id) {
        return storedRows(connection(), QStringLiteral("tAutoJobJob"),
                          QStringLiteral("idAutoJob = ") + id);
    };
    const auto scheduleRows = [&](const QString& id) {
        return storedRows(connection(), QStringLiteral("tAutoJobSchedule"),
                          QStringLiteral("idAutoJob = ") + id);
    };
    ASSERT_EQ(jobRow(pasted).size(), 1);
    EXPECT_EQ(jobRow(imported), jobRow(pasted));
    ASSERT_EQ(scheduleRows(pasted).size(), 2);
    EXPECT_EQ(scheduleRows(imported), scheduleRows(pasted));
}
