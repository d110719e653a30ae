#include <gtest/gtest.h>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmOptTextDatName.h"
#include "ui/windows/frmOptTextDateien.h"

namespace {

TEST(QtTextFileWindows, ButtonsRaiseTheirEventsAndPictures) {
    QtWindowFactory factory;
    auto w = factory.create(frmOptTextDateien::declaration());
    auto* qt = dynamic_cast<QtWindow*>(w.get());
    frmOptTextDateien files(std::move(w));
    QStringList events;
    files.evTextDateiAuswaehlen = [&](int row, int index) {
        events << QStringLiteral("Auswaehlen %1 %2").arg(row).arg(index);
    };
    IGrid& grid = files.grdFileNames();
    grid.setCols(2);
    grid.setRows(3);
    grid.setFixedRows(1);
    grid.setFormatString(QStringLiteral("<Tabelle|<Textdatei"));
    grid.setColWidth(0, 2000);
    grid.setTextMatrix(1, 0, QStringLiteral("Buchungen"));
    grid.setTextMatrix(1, 1, QStringLiteral("C:\\Import\\buch*.txt"));
    grid.setTextMatrix(2, 0, QStringLiteral("Debitoren"));
    grid.setTextMatrix(2, 1, QStringLiteral("C:\\Import\\deb*.txt"));
    grid.setRow(2);
    files.window().Show(false);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    EXPECT_EQ(qt->view(QStringLiteral("ctlOptTextDatei"), 1)->widget()->toolTip(),
              "Dateinamen beginnt mit");
    QTest::mouseClick(qt->view(QStringLiteral("ctlOptTextDatei"), 1)->widget(), Qt::LeftButton);
    EXPECT_EQ(events, QStringList{"Auswaehlen 2 1"});
    qt->shot(QStringLiteral("/tmp/frmOptTextDateien.png"));

    auto n = factory.create(frmOptTextDatName::declaration());
    auto* qtName = dynamic_cast<QtWindow*>(n.get());
    frmOptTextDatName name(std::move(n));
    name.ctlOptDateiNameBeginntMit().setText(QStringLiteral("buch"));
    name.window().Show(false);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(qtName->widget()));
    qtName->shot(QStringLiteral("/tmp/frmOptTextDatName.png"));
    QTest::mouseClick(qtName->view(QStringLiteral("cmdAbbrechen"))->widget(), Qt::LeftButton);
    EXPECT_FALSE(qtName->Visible());
}

}  // namespace
