#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <random>

#include "common/Clock.h"
#include "common/ErrObject.h"
#include "common/Services.h"
#include "suite/Database.h"
#include "tests/headless/BrowserTestDatabase.h"
#include "tests/headless/HeadlessTestKit.h"
#include "ui/windows/frmPakete.h"

using namespace headless_test;

namespace {

const QString kQuery = QStringLiteral("SELECT * FROM vEintrag WHERE (vEintrag.Typ IN (1, 3))");

// The in-memory browser over the log of 100,000 entries.
class BrowserViewTest : public ::testing::Test {
  protected:
    static std::shared_ptr<Database> makeDatabase() { return makeBrowserTestDatabase(); }
    static Services world(const std::shared_ptr<Database>& db) { return browserTestWorld(db); }

    // The rows of a plain query, each as its values.
    QList<QVariantList> plain(const QString& sql) {
        QSqlQuery q(QSqlDatabase::database(db->connectionName()));
        q.setForwardOnly(true);
        EXPECT_TRUE(q.exec(sql)) << sql.toStdString();
        QList<QVariantList> rows;
        while (q.next()) {
            QVariantList row;
            for (int c = 0; c < q.record().count(); ++c) {
                row << q.value(c);
            }
            rows << row;
        }
        return rows;
    }
    void exec(const QString& sql) {
        QSqlQuery q(QSqlDatabase::database(db->connectionName()));
        ASSERT_TRUE(q.exec(sql)) << sql.toStdString();
    }

    // The row of the first entry meeting the condition in the list ordered by Id.
    int plainRow(const QString& condition) {
        const auto n = plain(QStringLiteral("SELECT count(*) FROM (%1) WHERE Id < (SELECT min(Id) "
                                            "FROM (%1) WHERE %2)")
                                 .arg(kQuery, condition));
        return n[0][0].toInt() + 1;
    }

    QVariantList item(int row) {
        QVariantList values;
        for (const auto& [name, value] : sel.Item(row)) {
            values << value;
        }
        return values;
    }
    void expectRow(const QList<QVariantList>& expected, int row) {
        ASSERT_EQ(item(row), expected[row - 1]) << "row " << row;
    }
    void load(const QString& sql) {
        browser.setAbfrage(sql);
        browser.Load();
    }

    std::shared_ptr<Database> db = makeDatabase();
    ScopedServices scope{world(db)};
    Recorded w{frmPakete::declaration()};
    IBrowser& browser = w.get<IBrowser>("ctlPakete");
    ISelectionObject& sel = browser.Auswahl();
    HeadlessBrowser& kit = dynamic_cast<HeadlessBrowser&>(browser);
};

TEST_F(BrowserViewTest, EveryRowMatchesThePlainQueryWhicheverWayItIsReached) {
    load(kQuery);
    const auto expected = plain(kQuery + QStringLiteral(" ORDER BY Id"));
    ASSERT_EQ(sel.RecordCount(), expected.size());
    EXPECT_EQ(browser.SpaltenNamen(),
              (QStringList{"Id", "Typ", "Datum/Uhrzeit", "Wert", "Text", "Roh"}));
    // Front to back, back to front, and jumps all over the list.
    for (int r = 1; r <= sel.RecordCount(); ++r) {
        expectRow(expected, r);
    }
    for (int r = sel.RecordCount(); r >= 1; r -= 37) {
        expectRow(expected, r);
    }
    std::mt19937 random(11);
    std::uniform_int_distribution<int> anyRow(1, sel.RecordCount());
    for (int i = 0; i < 300; ++i) {
        expectRow(expected, anyRow(random));
    }
    EXPECT_LE(kit.rows().pagesKept(), BrowserRows::kPagesKept) << "only a few pages are kept";
    EXPECT_THROW(sel.Item(sel.RecordCount() + 1), RaisedError);
    EXPECT_THROW(sel.Item(0), RaisedError);
}

TEST_F(BrowserViewTest, SortingIsTheDatabasesOrderWithTheKeyBehind) {
    load(kQuery);
    for (const auto& [column, ascending] : QList<QPair<QString, bool>>{{"Datum/Uhrzeit", true},
                                                                       {"Datum/Uhrzeit", false},
                                                                       {"Wert", true},
                                                                       {"Wert", false},
                                                                       {"Roh", true},
                                                                       {"Id", false}}) {
        SCOPED_TRACE(column.toStdString() + (ascending ? " ascending" : " descending"));
        kit.sortBy(column, ascending);
        const QString dir = ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC");
        const auto expected =
            plain(kQuery + QStringLiteral(" ORDER BY [%1]%2, Id%2").arg(column, dir));
        ASSERT_EQ(sel.RecordCount(), expected.size());
        for (int r : {1, 2, 99, 100, 101, 5000, 33333, 40000, 66665, 66666}) {
            if (r <= expected.size()) {
                expectRow(expected, r);
            }
        }
        // Scrolling on, page after page, from a row far down.
        for (int r = 30001; r <= 31000; r += 37) {
            expectRow(expected, r);
        }
        expectRow(expected, sel.RecordCount());
        EXPECT_EQ(kit.sortColumn(), column);
    }
}

TEST_F(BrowserViewTest, FindRowAsksTheDatabaseForRowsNeverRead) {
    load(kQuery);
    const auto ids = plain(kQuery + QStringLiteral(" ORDER BY Id"));
    const int at = static_cast<int>(ids.size()) - 3;
    CValues byId{{QStringLiteral("Id"), ids[at - 1][0]}};
    EXPECT_EQ(sel.FindRow(byId), at);
    // Numbers also find text, text finds exactly, several values must all hold.
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), QString::number(ids[at - 1][0].toInt())}}), at);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Text"), QStringLiteral("Eintrag 500")}}),
              plainRow(QStringLiteral("Text = 'Eintrag 500'")));
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Text"), QStringLiteral("eintrag 500")}}), 0)
        << "text is compared exactly";
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Typ"), 3}, {QStringLiteral("Wert"), 62}}),
              plainRow(QStringLiteral("Typ = 3 AND Wert = 62")));
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Roh"), QVariant()}}),
              plainRow(QStringLiteral("Roh IS NULL")));
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Text"), QString()}}),
              plainRow(QStringLiteral("Roh IS NULL")))
        << "an empty text finds the empty and the missing text";
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Nix"), 1}}), 0);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), 2}}), 1);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), 4}}), 0) << "type 2 is not in the list";
    // In a sorted list the row is where the sort puts it.
    kit.sortBy(QStringLiteral("Datum/Uhrzeit"), false);
    const int sorted = sel.FindRow(byId);
    ASSERT_GT(sorted, 0);
    EXPECT_EQ(item(sorted)[0], ids[at - 1][0]);
}

TEST_F(BrowserViewTest, SelectionAndCurrentRowFollowTheirRecordsAcrossARefresh) {
    load(kQuery);
    kit.sortBy(QStringLiteral("Datum/Uhrzeit"), true);
    const QVariant a = item(60000)[0];
    const QVariant b = item(3)[0];
    const QVariant c = item(66000)[0];
    sel.setRow(60000);
    sel.SetSelected(3, true);
    sel.SetSelected(66000, true);
    // Entries before them go, entries after them come, one selected entry goes.
    exec(QStringLiteral("DELETE FROM tEintrag WHERE Datum < (SELECT Datum FROM tEintrag WHERE "
                        "Id = %1) AND Id % 5 = 1")
             .arg(a.toInt()));
    exec(QStringLiteral("DELETE FROM tEintrag WHERE Id = %1").arg(c.toInt()));
    exec(
        QStringLiteral("INSERT INTO tEintrag (Id, Datum, Typ, Wert, Text) SELECT 200000 + Id, "
                       "'2099-01-01 00:00:00', 1, 1, 'neu' FROM tEintrag WHERE Id <= 500"));
    browser.Refresh(false);
    const auto expected = plain(kQuery + QStringLiteral(" ORDER BY [Datum/Uhrzeit], Id"));
    ASSERT_EQ(sel.RecordCount(), expected.size());
    EXPECT_EQ(kit.sortColumn(), "Datum/Uhrzeit") << "the sort stays";
    ASSERT_EQ(sel.SelCount(), 2) << "the deleted entry dropped out";
    EXPECT_EQ(item(sel.SelRow(0))[0], a);
    EXPECT_EQ(item(sel.SelRow(1))[0], b);
    EXPECT_EQ(item(sel.Row())[0], a);
    EXPECT_LT(sel.Row(), 60000) << "it moved up";
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), a}}), sel.Row());
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), c}}), 0);
    for (int r : {1, sel.Row(), sel.RecordCount()}) {
        expectRow(expected, r);
    }
    // A load starts afresh.
    browser.Load();
    EXPECT_EQ(sel.SelCount(), 0);
    EXPECT_EQ(sel.Row(), 0);
}

TEST_F(BrowserViewTest, TheSortIsKeptForTheUserUnderTheKey) {
    exec(QStringLiteral("DELETE FROM tBrowserEinstellungen"));
    browser.setSchluessel(QStringLiteral("Test.Eintraege"));
    browser.setMitarbeiterId(7);
    load(kQuery);
    EXPECT_EQ(kit.sortColumn(), "");
    kit.sortBy(QStringLiteral("Datum/Uhrzeit"), false);
    kit.keepColumns({{QStringLiteral("Text"), 240}, {QStringLiteral("Datum/Uhrzeit"), 130}});
    EXPECT_EQ(
        plain(QStringLiteral("SELECT Schluessel, MitarbeiterId, SortSpalte, SortAbsteigend, "
                             "Spalten FROM tBrowserEinstellungen")),
        (QList<QVariantList>{
            {"Test.Eintraege", 7, "Datum/Uhrzeit", 1,
             "[{\"name\":\"Text\",\"width\":240},{\"name\":\"Datum/Uhrzeit\",\"width\":130}]"}}));

    // Another window (another workstation) of the same user opens sorted; another user not.
    Recorded other{frmPakete::declaration()};
    auto& second = other.get<HeadlessBrowser>("ctlPakete");
    second.setSchluessel(QStringLiteral("Test.Eintraege"));
    second.setMitarbeiterId(7);
    second.setAbfrage(kQuery);
    second.Load();
    EXPECT_EQ(second.sortColumn(), "Datum/Uhrzeit");
    EXPECT_FALSE(second.sortAscending());
    EXPECT_EQ(second.settings().columns.size(), 2);
    EXPECT_EQ(
        second.cellText(1, QStringLiteral("Datum/Uhrzeit")),
        plain(QStringLiteral("SELECT max(Datum) FROM tEintrag WHERE Typ <> 2"))[0][0].toString());
    second.setMitarbeiterId(8);
    second.Load();
    EXPECT_EQ(second.sortColumn(), "");
    EXPECT_TRUE(second.settings().columns.isEmpty());
}

TEST(BrowserDisplay, DatesShowTheGermanWayAndAllElseAsStored) {
    EXPECT_EQ(HeadlessBrowser::displayText(QStringLiteral("2026-03-09 07:05:04")),
              "09.03.2026 07:05:04");
    EXPECT_EQ(HeadlessBrowser::displayText(QStringLiteral("2026-03-09 07:05")),
              "09.03.2026 07:05:00");
    EXPECT_EQ(HeadlessBrowser::displayText(QStringLiteral("2026-03-09")), "09.03.2026");
    EXPECT_EQ(HeadlessBrowser::displayText(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59))),
              "31.12.2026 23:59:59");
    EXPECT_EQ(HeadlessBrowser::displayText(QStringLiteral("2026-03-09 Import")),
              "2026-03-09 Import");
    EXPECT_EQ(HeadlessBrowser::displayText(QStringLiteral("Import 2026")), "Import 2026");
    EXPECT_EQ(HeadlessBrowser::displayText(42), "42");
    EXPECT_EQ(HeadlessBrowser::displayText(QVariant()), "");
}

}  // namespace
