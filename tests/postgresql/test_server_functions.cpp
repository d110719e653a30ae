// len, LIKE on numbers and the schedule names compared without regard to case on the server.
#include <QSqlError>
#include <QSqlQuery>

#include "tests/postgresql/ServerTest.h"

using ServerFunctions = ServerTest;

TEST_F(ServerFunctions, LenCountsWithoutTrailingBlanksAndMeasuresNumbersByTheirDigits) {
    run(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name) VALUES (1, 'Kunden  ')"));
    run(QStringLiteral("INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (1, 'Täglich   ')"));
    const std::pair<const char*, QVariant> cases[] = {
        {"len('abc  ')", 3},
        {"len('  abc')", 5},
        {"len(' ')", 0},
        {"len('')", 0},
        {"len(E'abc\\t')", 4},
        {"len(12345)", 5},
        {"len(-12)", 3},
        {"len((SELECT Name FROM tAutoJobJob))", 6},
        {"len((SELECT Name FROM tAutoJobSchedule))", 7},
    };
    for (const auto& [expression, expected] : cases) {
        EXPECT_EQ(value(QStringLiteral("SELECT %1").arg(QLatin1String(expression))).toInt(),
                  expected.toInt())
            << expression;
    }
    EXPECT_TRUE(value(QStringLiteral("SELECT len(NULL)")).isNull());
}

TEST_F(ServerFunctions, LikeOnANumberComparesItsDecimalText) {
    run(
        QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, DatenArt, Aktiviert) VALUES "
                       "(1, 17, 1), (2, 18, 0), (3, 4, 1), (4, 28, 1), (5, 1, 0), (15, 99, 1)"));
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE DatenArt like '1%'")).toInt(),
        3);
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE DatenArt not like '1%'"))
                  .toInt(),
              3);
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE DatenArt LIKE '_8'")).toInt(),
        2);
    // As the job editor reads one job.
    EXPECT_EQ(
        value(QStringLiteral("select idAutoJob from tAutoJobJob where idAutoJob like '5'")).toInt(),
        5);
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE Aktiviert like '1'")).toInt(),
        4);
    EXPECT_TRUE(value(QStringLiteral("SELECT 12345678901::bigint LIKE '1234%'")).toBool());
    EXPECT_TRUE(value(QStringLiteral("SELECT -5 LIKE '-5'")).toBool());
    EXPECT_FALSE(value(QStringLiteral("SELECT 15 NOT LIKE '1_'")).toBool());
}

TEST_F(ServerFunctions, ScheduleNamesCompareWithoutRegardToCaseAndTrailingBlanks) {
    run(
        QStringLiteral("INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name) VALUES "
                       "(1, 1, 'Täglich'), (2, 1, 'Wöchentlich  '), (3, 1, 'a'), (4, 1, 'ä')"));
    auto idsNamed = [this](const QString& name) {
        return ServerDatabase::rows(db_,
                                    QStringLiteral("SELECT idAutoJobSchedule FROM tAutoJobSchedule "
                                                   "WHERE Name = '%1' ORDER BY 1")
                                        .arg(name))
            .join(u',');
    };
    EXPECT_EQ(idsNamed(QStringLiteral("TÄGLICH")), QStringLiteral("1"));
    EXPECT_EQ(idsNamed(QStringLiteral("täglich   ")), QStringLiteral("1"));
    EXPECT_EQ(idsNamed(QStringLiteral("WÖCHENTLICH")), QStringLiteral("2"));
    EXPECT_EQ(idsNamed(QStringLiteral("A")), QStringLiteral("3"));
    EXPECT_EQ(idsNamed(QStringLiteral("Ä")), QStringLiteral("4"));
    EXPECT_EQ(idsNamed(QStringLiteral("Taglich")), QString());

    // A bound value, as the record set passes it.
    QSqlQuery query(db_);
    ASSERT_TRUE(query.prepare(
        QStringLiteral("SELECT idAutoJobSchedule FROM tAutoJobSchedule WHERE Name = ?")));
    query.addBindValue(QStringLiteral("wöchentlich "));
    ASSERT_TRUE(query.exec()) << query.lastError().text().toStdString();
    ASSERT_TRUE(query.next());
    EXPECT_EQ(query.value(0).toInt(), 2);

    // The name is kept as written, its trailing blanks included.
    EXPECT_EQ(value(QStringLiteral("SELECT Name FROM tAutoJobSchedule WHERE idAutoJobSchedule = 2"))
                  .toString(),
              QStringLiteral("Wöchentlich  "));
    EXPECT_EQ(value(QStringLiteral("SELECT count(DISTINCT Name) FROM tAutoJobSchedule "
                                   "WHERE Name IN ('täglich', 'TÄGLICH ', 'Täglich')"))
                  .toInt(),
              1);
    // At most 100 characters, as in the SQLite database.
    run(QStringLiteral("INSERT INTO tAutoJobSchedule (Name) VALUES ('%1   ')")
            .arg(QString(100, u'x')));
    QSqlQuery tooLong(db_);
    EXPECT_FALSE(tooLong.exec(QStringLiteral("INSERT INTO tAutoJobSchedule (Name) VALUES ('%1')")
                                  .arg(QString(101, u'x'))));
}

TEST_F(ServerFunctions, OtherTextsKeepTheirCaseAndBlanks) {
    run(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name) VALUES (1, 'Kunden')"));
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE Name = 'kunden'")).toInt(), 0);
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE Name = 'Kunden '")).toInt(),
        0);
    EXPECT_EQ(
        value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE Name LIKE 'Ku%'")).toInt(), 1);
    EXPECT_FALSE(value(QStringLiteral("SELECT 'Täglich' = 'TÄGLICH'")).toBool());
}
