#include <gtest/gtest.h>
#include <QHeaderView>
#include <QScrollBar>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableView>
#include <QTest>

#include "QtTestKit.h"
#include "common/Clock.h"
#include "gui/QtBrowser.h"
#include "suite/Database.h"
#include "tests/headless/BrowserTestDatabase.h"
#include "ui/windows/frmPakete.h"

using namespace qt_test;

namespace {

const QString kQuery = QStringLiteral("SELECT * FROM vEintrag WHERE (vEintrag.Typ IN (1, 3))");

// The Qt browser over 100,000 entries: it shows them all but reads only what is in sight.
class QtBrowserViewTest : public ::testing::Test {
  protected:
    static std::shared_ptr<Database> makeDatabase() { return makeBrowserTestDatabase(); }
    static Services world(const std::shared_ptr<Database>& db) { return browserTestWorld(db); }

    QtBrowserViewTest() {
        w.show();
        open(browser());
    }
    static void open(QtBrowser& b) {
        b.setSchluessel(QStringLiteral("Test.Eintraege"));
        b.setMitarbeiterId(3);
        b.setAbfrage(kQuery);
        b.Load();
        for (const QString& c : b.SpaltenNamen()) {
            b.Spalte(c)->SpalteFlagB = true;
        }
    }
    QVariant plain(const QString& sql) {
        QSqlQuery q(QSqlDatabase::database(db->connectionName()));
        EXPECT_TRUE(q.exec(sql)) << sql.toStdString();
        return q.next() ? q.value(0) : QVariant();
    }
    QtBrowser& browser() { return w.window().get<QtBrowser>(QStringLiteral("ctlPakete")); }
    QTableView* view() { return browser().view(); }
    QString shown(int row, int column) {
        return view()->model()->index(row, column).data().toString();
    }

    std::shared_ptr<Database> db = makeDatabase();
    ScopedServices scope{world(db)};
    RecordedWindow w{frmPakete::declaration()};
};

TEST_F(QtBrowserViewTest, AllRowsAreThereButOnlyThoseInSightAreRead) {
    const int count = plain(QStringLiteral("SELECT count(*) FROM tEintrag WHERE Typ <> 2")).toInt();
    EXPECT_EQ(view()->model()->rowCount(), count);
    QApplication::processEvents();
    EXPECT_LE(browser().rows().pagesKept(), 2);

    view()->scrollToBottom();
    view()->viewport()->repaint();
    EXPECT_EQ(shown(count - 1, 0),
              plain(QStringLiteral("SELECT max(Id) FROM tEintrag WHERE Typ <> 2")).toString());
    view()->verticalScrollBar()->setValue(view()->verticalScrollBar()->maximum() / 2);
    view()->viewport()->repaint();
    EXPECT_LE(browser().rows().pagesKept(), BrowserRows::kPagesKept);

    browser().userBrowserSelect({count - 1, 5});
    EXPECT_EQ(browser().Row(), count - 1);
    EXPECT_EQ(view()->selectionModel()->selectedRows().size(), 2);
}

TEST_F(QtBrowserViewTest, DatesShowTheGermanWayAndNumbersStandRight) {
    // Row 1 is entry 2 (entry 1 is of type 2).
    EXPECT_EQ(shown(0, 2), "20.04.2021 23:40:00");
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Datum/Uhrzeit")), "2021-04-20 23:40:00")
        << "the logic reads the value as stored";
    const auto align = [this](int column) {
        return view()->model()->index(0, column).data(Qt::TextAlignmentRole).toInt() &
               Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(align(3), Qt::AlignRight) << "Wert";
    EXPECT_EQ(align(0), Qt::AlignRight) << "Id";
    EXPECT_EQ(align(4), Qt::AlignLeft) << "Text";
    EXPECT_EQ(align(2), Qt::AlignLeft) << "a date is text";
}

TEST_F(QtBrowserViewTest, AHeadingSortsThroughTheDatabaseAndTheSortIsKept) {
    browser().setRow(1);
    const QString first = browser().cellText(1, QStringLiteral("Id"));
    view()->horizontalHeader()->sectionClicked(2);
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Datum/Uhrzeit")),
              plain(QStringLiteral("SELECT min(Datum) FROM tEintrag WHERE Typ <> 2")).toString());
    EXPECT_TRUE(view()->horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(view()->horizontalHeader()->sortIndicatorSection(), 2);
    EXPECT_EQ(browser().cellText(browser().Row(), QStringLiteral("Id")), first)
        << "the current record stays current";
    view()->horizontalHeader()->sectionClicked(2);
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Datum/Uhrzeit")),
              plain(QStringLiteral("SELECT max(Datum) FROM tEintrag WHERE Typ <> 2")).toString());
    EXPECT_EQ(view()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(plain(QStringLiteral("SELECT SortSpalte || '/' || SortAbsteigend FROM "
                                   "tBrowserEinstellungen WHERE Schluessel = 'Test.Eintraege' "
                                   "AND MitarbeiterId = 3"))
                  .toString(),
              "Datum/Uhrzeit/1");
}

TEST_F(QtBrowserViewTest, ColumnWidthsAndOrderFollowTheUserToTheNextWindow) {
    QHeaderView* header = view()->horizontalHeader();
    header->resizeSection(3, 133);                   // Wert
    header->moveSection(header->visualIndex(2), 0);  // Datum/Uhrzeit first
    QTest::qWait(700);
    EXPECT_TRUE(plain(QStringLiteral("SELECT Spalten FROM tBrowserEinstellungen"))
                    .toString()
                    .startsWith(QStringLiteral("[{\"name\":\"Datum/Uhrzeit\"")));

    RecordedWindow other{frmPakete::declaration()};
    other.show();
    auto& second = other.window().get<QtBrowser>(QStringLiteral("ctlPakete"));
    open(second);
    QHeaderView* h = second.view()->horizontalHeader();
    EXPECT_EQ(h->logicalIndex(0), 2);
    EXPECT_EQ(h->sectionSize(3), 133);
}

}  // namespace
