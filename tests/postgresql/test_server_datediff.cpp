// datediff on the server counts unit boundaries exactly as dateDiff of the program does, for
// every argument form the statements use.
#include <QDate>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <array>
#include <functional>
#include <random>
#include <vector>

#include "suite/SqlDates.h"
#include "tests/postgresql/ServerTest.h"

namespace {

constexpr std::array<DatePart, 8> kParts{DatePart::Year,   DatePart::Quarter, DatePart::Month,
                                         DatePart::Week,   DatePart::Day,     DatePart::Hour,
                                         DatePart::Minute, DatePart::Second};

QString literal(const QDateTime& t) {
    return QStringLiteral("'%1'").arg(storedDateText(t));
}

QDateTime randomMoment(std::mt19937& rng, int fromYear, int toYear) {
    std::uniform_int_distribution<qint64> day(QDate(fromYear, 1, 1).toJulianDay(),
                                              QDate(toYear, 12, 31).toJulianDay());
    std::uniform_int_distribution<int> second(0, 86399);
    return QDateTime(QDate::fromJulianDay(day(rng)), QTime(0, 0).addSecs(second(rng)));
}

// A moment at which units begin or end: the turn of a year, a quarter or a month, 28 and 29
// February (1900 and 2100 are no leap years, 2000 is), the turn from Saturday to Sunday, the
// turn of an hour.
QDateTime edgeMoment(std::mt19937& rng) {
    std::uniform_int_distribution<int> year(1900, 2100);
    std::uniform_int_distribution<int> month(1, 12);
    std::uniform_int_distribution<int> kind(0, 4);
    std::uniform_int_distribution<int> nearBy(-3, 3);
    const int y = year(rng);
    QDateTime t;
    switch (kind(rng)) {
        case 0:
            t = QDateTime(QDate(y, 1, 1), QTime(0, 0));
            break;
        case 1: {
            const int m = month(rng);
            t = QDateTime(QDate(y, m, 1).addMonths(1), QTime(0, 0));
            break;
        }
        case 2: {
            const int leapYear = std::array{1900, 1904, 2000, 2024, 2100}[rng() % 5];
            t = QDateTime(QDate(leapYear, 2, 28 + static_cast<int>(rng() % 2)), QTime(0, 0));
            if (!t.isValid()) {
                t = QDateTime(QDate(leapYear, 3, 1), QTime(0, 0));
            }
            break;
        }
        case 3: {
            QDate d = randomMoment(rng, y, y).date();
            t = QDateTime(d.addDays(7 - d.dayOfWeek()), QTime(0, 0));  // a Sunday
            break;
        }
        default:
            t = randomMoment(rng, y, y);
            t.setTime(QTime(t.time().hour(), 0));
            break;
    }
    // Just before or after the turn, by seconds or by a day.
    return rng() % 2 ? t.addSecs(nearBy(rng)) : t.addDays(nearBy(rng));
}

struct Pair {
    QDateTime a;
    QDateTime b;
};

std::vector<Pair> randomPairs(std::mt19937& rng, int count, bool far) {
    std::vector<Pair> pairs;
    std::uniform_int_distribution<qint64> seconds(-3 * 86400, 3 * 86400);
    std::uniform_int_distribution<qint64> days(-800, 800);
    for (int i = 0; i < count; ++i) {
        if (far) {
            pairs.push_back({randomMoment(rng, 1900, 2100), randomMoment(rng, 1900, 2100)});
            continue;
        }
        const QDateTime a = rng() % 4 ? edgeMoment(rng) : randomMoment(rng, 1900, 2100);
        const QDateTime b = a.addSecs(rng() % 2 ? seconds(rng) : days(rng) * 86400 + seconds(rng));
        pairs.push_back(rng() % 2 ? Pair{a, b} : Pair{b, a});
    }
    return pairs;
}

class ServerDatediff : public ServerTest {
  protected:
    // Compares every pair in every unit (seconds only withSeconds: they overflow an integer
    // beyond 68 years); compared_ is the number of pairs compared.
    void compare(const std::vector<Pair>& pairs, bool withSeconds) {
        int compared = 0;
        int failures = 0;
        constexpr int kChunk = 500;
        for (size_t start = 0; start < pairs.size(); start += kChunk) {
            QStringList values;
            const size_t end = std::min(pairs.size(), start + kChunk);
            for (size_t i = start; i < end; ++i) {
                values << QStringLiteral("(%1, timestamp %2, timestamp %3)")
                              .arg(i)
                              .arg(literal(pairs[i].a), literal(pairs[i].b));
            }
            QStringList columns;
            for (const DatePart part : kParts) {
                columns
                    << (part == DatePart::Second && !withSeconds
                            ? QStringLiteral("NULL")
                            : QStringLiteral("datediff('%1', v.a, v.b)").arg(datePartName(part)));
            }
            QSqlQuery query(db_);
            ASSERT_TRUE(query.exec(
                QStringLiteral("SELECT v.i, %1 FROM (VALUES %2) AS v (i, a, b) "
                               "ORDER BY v.i")
                    .arg(columns.join(QStringLiteral(", ")), values.join(QStringLiteral(", ")))))
                << query.lastError().text().toStdString();
            while (query.next()) {
                const Pair& p = pairs[query.value(0).toULongLong()];
                for (size_t k = 0; k < kParts.size(); ++k) {
                    if (kParts[k] == DatePart::Second && !withSeconds) {
                        continue;
                    }
                    const qint64 expected = dateDiff(kParts[k], p.a, p.b);
                    const qint64 got = query.value(static_cast<int>(k) + 1).toLongLong();
                    if (got != expected && ++failures <= 10) {
                        ADD_FAILURE() << "datediff('" << datePartName(kParts[k]).toStdString()
                                      << "', " << storedDateText(p.a).toStdString() << ", "
                                      << storedDateText(p.b).toStdString() << "): server " << got
                                      << ", program " << expected;
                    }
                }
                ++compared;
            }
        }
        EXPECT_EQ(failures, 0);
        compared_ = compared;
    }

    int compared_ = 0;
};

}  // namespace

TEST_F(ServerDatediff, CountsTheBoundariesOfEveryUnitAsTheProgramDoes) {
    std::mt19937 rng(20261123);
    compare(randomPairs(rng, 4000, false), true);
    EXPECT_EQ(compared_, 4000);
    // Centuries apart: every unit but seconds, which leave the integer range after 68 years.
    compare(randomPairs(rng, 1000, true), false);
    EXPECT_EQ(compared_, 1000);
}

TEST_F(ServerDatediff, KnowsTheUnitsByEveryNameInAnyCaseAndRejectsOthers) {
    const QStringList names[] = {
        {"year", "YY", "yyyy"},
        {"quarter", "QQ", "q"},
        {"Month", "mm", "M"},
        {"WEEK", "wk", "ww"},
        {"day", "DD", "d", "dayofyear", "dy", "y"},
        {"hour", "HH"},
        {"minute", "MI", "n"},
        {"second", "ss", "S"},
    };
    const QDateTime a(QDate(2023, 11, 30), QTime(22, 59, 58));
    const QDateTime b(QDate(2025, 3, 2), QTime(1, 0, 1));
    for (size_t k = 0; k < kParts.size(); ++k) {
        for (const QString& name : names[k]) {
            EXPECT_EQ(value(QStringLiteral("SELECT datediff('%1', %2, %3)")
                                .arg(name, literal(a), literal(b)))
                          .toLongLong(),
                      dateDiff(kParts[k], a, b))
                << name.toStdString();
        }
    }
    QSqlQuery query(db_);
    EXPECT_FALSE(query.exec(QStringLiteral("SELECT datediff('fortnight', getdate(), getdate())")));
    EXPECT_TRUE(query.lastError().databaseText().contains(
        QStringLiteral("datediff: unbekannte Einheit 'fortnight'")))
        << query.lastError().text().toStdString();
}

TEST_F(ServerDatediff, TakesTimestampsDateTextsAndDayNumbersInEveryCombination) {
    // Each form: the SQL for moment t of row id, and the moment the program reads from it.
    struct Form {
        const char* label;
        std::function<QString(const QDateTime&, const QString& side)> sql;
        std::function<QDateTime(const QDateTime&)> moment;
    };
    auto dayNumber = [](const QDateTime& t) { return dayNumberOrigin().daysTo(t.date()); };
    auto midnight = [](const QDateTime& t) { return QDateTime(t.date(), QTime(0, 0)); };
    auto same = [](const QDateTime& t) { return t; };
    auto dayNumberWithTime = [dayNumber](const QDateTime& t) {
        return QString::number(dayNumber(t) + t.time().msecsSinceStartOfDay() / 86400000.0, 'f',
                               10);
    };
    const std::vector<Form> forms = {
        {"timestamp column", [](auto&, const QString& s) { return "f.ts_" + s; }, same},
        {"date text", [](const QDateTime& t, auto&) { return literal(t); }, same},
        {"date without time",
         [](const QDateTime& t, auto&) {
             return QStringLiteral("'%1'").arg(t.date().toString(Qt::ISODate));
         },
         midnight},
        {"German date text",
         [](const QDateTime& t, auto&) {
             return QStringLiteral("'%1'").arg(t.toString(QStringLiteral("dd.MM.yyyy HH:mm")));
         },
         [](const QDateTime& t) {
             return QDateTime(t.date(), QTime(t.time().hour(), t.time().minute()));
         }},
        {"ISO text with T, fraction and blanks",
         [](const QDateTime& t, auto&) {
             return QStringLiteral("'  %1.987 '")
                 .arg(t.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")));
         },
         same},
        {"text column", [](auto&, const QString& s) { return "f.txt_" + s; }, same},
        {"day number",
         [dayNumber](const QDateTime& t, auto&) { return QString::number(dayNumber(t)); },
         midnight},
        {"day number column", [](auto&, const QString& s) { return "f.tage_" + s; }, midnight},
        {"day number with time",
         [dayNumberWithTime](const QDateTime& t, auto&) { return dayNumberWithTime(t); },
         [dayNumberWithTime](const QDateTime& t) {
             // Before 1899-12-30 the fraction is the time of the day after the whole days.
             return dateFromDayNumber(dayNumberWithTime(t).toDouble());
         }},
        {"day number as text",
         [dayNumber](const QDateTime& t, auto&) {
             return QStringLiteral("'%1'").arg(dayNumber(t));
         },
         midnight},
    };

    std::mt19937 rng(7);
    const std::vector<Pair> pairs = randomPairs(rng, 30, false);
    run(
        QStringLiteral("CREATE TABLE formen (id integer, ts_a timestamp(0), ts_b timestamp(0), "
                       "txt_a varchar(30), txt_b varchar(30), tage_a integer, tage_b integer)"));
    for (size_t i = 0; i < pairs.size(); ++i) {
        run(QStringLiteral("INSERT INTO formen VALUES (%1, %2, %3, %2, %3, %4, %5)")
                .arg(i)
                .arg(literal(pairs[i].a), literal(pairs[i].b))
                .arg(dayNumberOrigin().daysTo(pairs[i].a.date()))
                .arg(dayNumberOrigin().daysTo(pairs[i].b.date())));
    }
    const DatePart parts[] = {DatePart::Month, DatePart::Day, DatePart::Minute};
    for (const Form& fa : forms) {
        for (const Form& fb : forms) {
            QStringList branches;
            for (size_t i = 0; i < pairs.size(); ++i) {
                QStringList columns;
                for (const DatePart part : parts) {
                    columns << QStringLiteral("datediff('%1', %2, %3)")
                                   .arg(datePartName(part), fa.sql(pairs[i].a, "a"),
                                        fb.sql(pairs[i].b, "b"));
                }
                branches << QStringLiteral("SELECT %1, %2 FROM formen f WHERE f.id = %1")
                                .arg(i)
                                .arg(columns.join(QStringLiteral(", ")));
            }
            QSqlQuery query(db_);
            ASSERT_TRUE(query.exec(branches.join(QStringLiteral(" UNION ALL ")) +
                                   QStringLiteral(" ORDER BY 1")))
                << fa.label << " / " << fb.label << ": " << query.lastError().text().toStdString();
            int rows = 0;
            while (query.next()) {
                const Pair& p = pairs[query.value(0).toULongLong()];
                for (int k = 0; k < 3; ++k) {
                    EXPECT_EQ(query.value(k + 1).toLongLong(),
                              dateDiff(parts[k], fa.moment(p.a), fb.moment(p.b)))
                        << fa.label << " / " << fb.label << ", "
                        << datePartName(parts[k]).toStdString() << ", "
                        << storedDateText(p.a).toStdString() << " .. "
                        << storedDateText(p.b).toStdString();
                }
                ++rows;
            }
            EXPECT_EQ(rows, static_cast<int>(pairs.size()));
        }
    }
}

TEST_F(ServerDatediff, GivesNullForNullAndFailsOnWhatIsNoDate) {
    run(QStringLiteral("CREATE TABLE leer (ts timestamp(0), tage integer, txt text)"));
    run(QStringLiteral("INSERT INTO leer VALUES (NULL, NULL, NULL)"));
    for (const char* sql : {
             "SELECT datediff('day', NULL, getdate()) FROM leer",
             "SELECT datediff('day', getdate(), NULL) FROM leer",
             "SELECT datediff('day', NULL, NULL) FROM leer",
             "SELECT datediff('day', ts, getdate()) FROM leer",
             "SELECT datediff('day', tage, 45000) FROM leer",
             "SELECT datediff('day', txt, '2026-01-01') FROM leer",
             "SELECT datediff('hour', 45000, tage) FROM leer",
             "SELECT datediff(NULL, getdate(), getdate()) FROM leer",
         }) {
        const QVariant v = value(QString::fromLatin1(sql));
        EXPECT_TRUE(v.isNull()) << sql << " gave " << v.toString().toStdString();
    }
    for (const char* text : {"2026-02-30", "31.02.2026", "gestern", "2026-01-01 25:00"}) {
        QSqlQuery query(db_);
        EXPECT_FALSE(query.exec(
            QStringLiteral("SELECT datediff('day', '%1', getdate())").arg(QLatin1String(text))));
        EXPECT_TRUE(query.lastError().databaseText().contains(
            QStringLiteral("datediff: '%1' ist kein Datum").arg(QLatin1String(text))))
            << query.lastError().text().toStdString();
    }
}

TEST_F(ServerDatediff, ReadsNegativeAndFractionalDayNumbersAsTheProgramDoes) {
    for (const double days : {-1.25, -0.5, 0.0, 0.999994, 1.5, 2958465.0, 45000.041666667}) {
        const QDateTime expected = dateFromDayNumber(days);
        EXPECT_EQ(value(QStringLiteral("SELECT datediff('second', timestamp %1, %2)")
                            .arg(literal(expected))
                            .arg(QString::number(days, 'f', 9)))
                      .toLongLong(),
                  0)
            << days;
    }
}

TEST_F(ServerDatediff, GetdateIsTheServersLocalTimeInWholeSeconds) {
    EXPECT_EQ(value(QStringLiteral("SELECT datediff('second', getdate(), localtimestamp)")).toInt(),
              0);
    EXPECT_EQ(
        value(QStringLiteral("SELECT getdate() = date_trunc('second', localtimestamp)")).toBool(),
        true);
    EXPECT_EQ(value(QStringLiteral("SELECT getdate()")).toDateTime().time().msec(), 0);
}
