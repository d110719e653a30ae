// The list browser on a PostgreSQL database: the same rows in the same places as a plain query
// of the server gives them, sorted, found and kept selected across a refresh.
#include <gtest/gtest.h>

#include "common/Clock.h"
#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "common/Services.h"
#include "suite/Database.h"
#include "suite/PostgresConnection.h"
#include "tests/headless/BrowserTestDatabase.h"
#include "tests/headless/HeadlessTestKit.h"
#include "tests/postgresql/ServerDatabase.h"
#include "ui/windows/frmPakete.h"

using namespace headless_test;

namespace {

const QString kQuery = QStringLiteral("SELECT * FROM vEintrag WHERE (vEintrag.Typ IN (1, 3))");

std::shared_ptr<Database> serverLog(const ServerDatabase& server) {
    auto db =
        Database::open(PostgresConnection::addressOf(server.name()),
                       std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0))));
    db->applySchema();
    // 30,000 entries, dates out of the order of their ids and repeated, NULL texts and numbers.
    db->runScript(QStringLiteral(
        "CREATE TABLE tEintrag (Id integer PRIMARY KEY, Datum timestamp(0), Typ integer, "
        "  Wert integer, Text text);"
        "CREATE INDEX ixEintragDatum ON tEintrag (Datum);"
        "CREATE VIEW vEintrag AS SELECT Id, Typ, Datum AS \"datum/uhrzeit\", Wert, "
        "  COALESCE(Text, '') AS Text, Text AS Roh FROM tEintrag;"
        "INSERT INTO tEintrag SELECT i, "
        "  timestamp '2021-01-01' + ((i * 7919) % 5000) * interval '10 minutes', 1 + i % 3, "
        "  CASE WHEN i % 13 = 0 THEN NULL ELSE (i * 31) % 1000 END, "
        "  CASE WHEN i % 17 = 0 THEN NULL ELSE 'Eintrag ' || (i % 977) END "
        "FROM generate_series(1, 30000) AS i;"
        "ANALYZE tEintrag"));
    return db;
}

class ServerBrowser : public ::testing::Test {
  protected:
    // The rows of a plain query, each as its values, read as the program reads values.
    QList<QVariantList> plain(const QString& sql) {
        auto rs = db->recordsetFactory()();
        rs->OpenQuery(sql, 0);
        QList<QVariantList> rows;
        for (bool more = rs->Move(0); more; more = rs->Move(3)) {
            rows << rs->ReadValues();
        }
        return rows;
    }
    QVariantList item(int row) {
        QVariantList values;
        for (const auto& [name, value] : sel.Item(row)) {
            values << value;
        }
        return values;
    }
    void load() {
        browser.setAbfrage(kQuery);
        browser.Load();
    }

    ServerDatabase server;
    std::shared_ptr<Database> db = serverLog(server);
    ScopedServices scope{browserTestWorld(db)};
    Recorded w{frmPakete::declaration()};
    IBrowser& browser = w.get<IBrowser>("ctlPakete");
    ISelectionObject& sel = browser.Auswahl();
    HeadlessBrowser& kit = dynamic_cast<HeadlessBrowser&>(browser);
};

TEST_F(ServerBrowser, RowsAndSortsAreTheServersWithTheKeyBehind) {
    load();
    // Names the system's schema spells keep that spelling; this view's own come as the server
    // folds them.
    EXPECT_EQ(browser.SpaltenNamen(),
              (QStringList{"Id", "Typ", "Datum/Uhrzeit", "Wert", "Text", "roh"}));
    const auto byId = plain(kQuery + QStringLiteral(" ORDER BY Id"));
    ASSERT_EQ(sel.RecordCount(), byId.size());
    for (int r : {1, 2, 100, 101, 9999, 15000, 19999, 20000}) {
        ASSERT_EQ(item(r), byId[r - 1]) << "row " << r;
    }
    for (const auto& [column, ascending] : QList<QPair<QString, bool>>{
             {"Datum/Uhrzeit", true}, {"Datum/Uhrzeit", false}, {"Wert", true}, {"roh", false}}) {
        SCOPED_TRACE(column.toStdString() + (ascending ? " ascending" : " descending"));
        kit.sortBy(column, ascending);
        const QString dir = ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC");
        const auto expected = plain(kQuery + QStringLiteral(" ORDER BY [%1]%2 NULLS %3, Id%2")
                                                 .arg(column, dir, ascending ? "FIRST" : "LAST"));
        ASSERT_EQ(sel.RecordCount(), expected.size());
        for (int r : {1, 99, 100, 101, 5000, 12345, 19999, 20000}) {
            ASSERT_EQ(item(r), expected[r - 1]) << "row " << r;
        }
        // A row is found where the sort puts it.
        const QVariant far = expected[17000][0];
        EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), far}}), 17001);
    }
}

TEST_F(ServerBrowser, SelectionAndCurrentRowFollowTheirRecordsAcrossARefresh) {
    load();
    kit.sortBy(QStringLiteral("Datum/Uhrzeit"), true);
    const QVariant a = item(15000)[0];
    const QVariant b = item(3)[0];
    const QVariant c = item(16000)[0];
    sel.setRow(15000);
    sel.SetSelected(3, true);
    sel.SetSelected(16000, true);
    // Entries before them go, entries after them come, one selected entry goes.
    db->runScript(QStringLiteral("DELETE FROM tEintrag WHERE Datum < (SELECT Datum FROM "
                                 "tEintrag WHERE Id = %1) AND Id % 5 = 1")
                      .arg(a.toInt()));
    db->runScript(QStringLiteral("DELETE FROM tEintrag WHERE Id = %1").arg(c.toInt()));
    db->runScript(
        QStringLiteral("INSERT INTO tEintrag (Id, Datum, Typ, Wert, Text) SELECT "
                       "100000 + Id, '2099-01-01 00:00:00', 1, 1, 'neu' FROM tEintrag "
                       "WHERE Id <= 500"));
    browser.Refresh(false);
    ASSERT_EQ(sel.SelCount(), 2) << "the deleted entry dropped out";
    EXPECT_EQ(item(sel.SelRow(0))[0], a);
    EXPECT_EQ(item(sel.SelRow(1))[0], b);
    EXPECT_EQ(item(sel.Row())[0], a);
    EXPECT_LT(sel.Row(), 15000) << "it moved up";
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), a}}), sel.Row());
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Id"), c}}), 0);
    const auto expected = plain(kQuery + QStringLiteral(" ORDER BY [Datum/Uhrzeit], Id"));
    ASSERT_EQ(sel.RecordCount(), expected.size());
    for (int r : {1, sel.Row(), sel.RecordCount()}) {
        EXPECT_EQ(item(r), expected[r - 1]) << "row " << r;
    }
}

}  // namespace
