#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmEigenschaften.h"

using namespace qt_test;

namespace {

// The editor on Qt widgets with the events it raises kept as text.
struct QtEditor {
    QtEditor() {
        auto w = factory.create(frmEigenschaften::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<frmEigenschaften>(std::move(w));
        form->evFrmEigenschaftenCommandButtonClicked = [this](int i) {
            events << QStringLiteral("CommandButtonClicked %1").arg(i);
        };
        form->evOptDateiAuswaehlen = [this](int i) {
            events << QStringLiteral("OptDateiAuswaehlen %1").arg(i);
        };
        form->evToolClick = [this](const QString& t) {
            events << QStringLiteral("ToolClick ") + t;
        };
        form->evGeaendert = [this] { events << QStringLiteral("Geaendert"); };
        form->evImportfileChanged = [this] { events << QStringLiteral("ImportfileChanged"); };
        form->evMitFremdformat = [this] { events << QStringLiteral("MitFremdformat"); };
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name, int index = -1) {
        QtControlView* v = qt->view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }
    // Shows the panels of one job type the way the editor's logic does.
    void showPanels(const QStringList& shown) {
        for (const char* panel : {"fraImport", "fraBuchungen", "fraScandokumente", "fraNivora",
                                  "FraTxtImport", "picBelegarten"}) {
            form->window()
                .control(QString::fromUtf8(panel))
                ->setVisible(shown.contains(QString::fromUtf8(panel)));
        }
        QTest::qWait(20);
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<frmEigenschaften> form;
    QStringList events;
};

TEST(QtFrmEigenschaften, EveryControlHasItsWidgetCaptionAndToolTip) {
    QtEditor e;
    EXPECT_EQ(e.qt->widget()->windowTitle(), "Paket bearbeiten");
    qt_test::expectDeclaredControlsShown(*e.qt, frmEigenschaften::declaration(), true);
    auto* tabs = qobject_cast<QTabWidget*>(e.widget("tabControl"));
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->tabText(0), "Allgemein");
    EXPECT_EQ(tabs->tabText(1), "Zeitpläne");
    EXPECT_FALSE(tabs->isTabEnabled(1));
}

TEST(QtFrmEigenschaften, ClicksAndTypingRaiseTheWindowsEvents) {
    QtEditor e;
    e.showPanels({QStringLiteral("fraImport"), QStringLiteral("FraTxtImport"),
                  QStringLiteral("fraBuchungen")});
    QTest::mouseClick(e.widget("cmdCommandButton", frmEigenschaften::Cmd::Uebernehmen),
                      Qt::LeftButton);
    QTest::mouseClick(e.widget("cmdCommandButton", frmEigenschaften::Cmd::Logverzeichnis),
                      Qt::LeftButton);
    QTest::mouseClick(e.widget("cmdOptFileName", frmEigenschaften::OptDatei::Skript),
                      Qt::LeftButton);
    e.qt->get<HeadlessControl>(QStringLiteral("tbrMain"))
        .userTool(QStringLiteral("barMain"), QStringLiteral("save"));
    QWidget* check = e.widget("chkFremdFormat");
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    EXPECT_EQ(e.events, (QStringList{"CommandButtonClicked 7", "CommandButtonClicked 8",
                                     "OptDateiAuswaehlen 0", "ToolClick save", "MitFremdformat"}));
    e.events.clear();

    auto* name = qobject_cast<QLineEdit*>(e.qt->view(QStringLiteral("txtTextBox"), 0)->keyTarget());
    ASSERT_NE(name, nullptr);
    e.form->txtTextBox(frmEigenschaften::Txt::Name).SetFocus();
    QTest::keyClicks(name, QStringLiteral("a"));
    EXPECT_TRUE(e.events.contains("Geaendert"));
    EXPECT_TRUE(e.events.contains("ImportfileChanged"));
    e.events.clear();
    e.form->txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QStringLiteral("D:\\Daten"));
    EXPECT_EQ(e.events, QStringList{"ImportfileChanged"});
    e.events.clear();

    e.qt->widget()->close();
    EXPECT_EQ(e.events, (QStringList{"CommandButtonClicked 1", "CommandButtonClicked 1"}));
}

// Pictures of the window for a look by eye: the general page with the panels of a few job
// types, and the schedules.
TEST(QtFrmEigenschaften, Pictures) {
    QtEditor e;
    e.form->cboComboBox(frmEigenschaften::Cbo::Auftragsart).AddItem(4, QStringLiteral("Buchungen"));
    e.form->cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(4);
    e.form->lblLabel(frmEigenschaften::Lbl::RechnerDatum)
        .setCaption(QStringLiteral("Aktuelles Rechnerdatum: 22.11.2026 10:00:00"));
    e.form->lblLetzteAenderung().setCaption(QStringLiteral("Letzte Änderung: Keine Angaben"));
    e.showPanels({QStringLiteral("fraImport"), QStringLiteral("fraBuchungen")});
    e.qt->shot(QStringLiteral("/tmp/frmEigenschaften_buchungen.png"));
    e.showPanels({QStringLiteral("fraImport"), QStringLiteral("FraTxtImport")});
    e.qt->shot(QStringLiteral("/tmp/frmEigenschaften_textimport.png"));
    e.showPanels({QStringLiteral("fraImport"), QStringLiteral("picBelegarten")});
    e.qt->shot(QStringLiteral("/tmp/frmEigenschaften_belegarten.png"));
    e.showPanels({QStringLiteral("fraImport"), QStringLiteral("fraScandokumente"),
                  QStringLiteral("fraNivora")});
    e.qt->shot(QStringLiteral("/tmp/frmEigenschaften_scan_nivora.png"));
    e.form->tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, true);
    e.form->tabControl().setTab(frmEigenschaften::Tab::Zeitplaene);
    QApplication::processEvents();
    e.qt->shot(QStringLiteral("/tmp/frmEigenschaften_zeitplaene.png"));
}

}  // namespace
