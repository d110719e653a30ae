#include <gtest/gtest.h>

#include "app/cProperties.h"
#include "headless/HeadlessDialogs.h"
#include "tests/jobs/test_panels_access.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

using A = PanelsTestAccess;
using panels_test::Editor;

class Panels : public ::testing::Test {
  protected:
    Editor e;
    frmEigenschaften& f() { return *e.f; }

    // The panels on show, in a fixed order.
    QStringList rahmen() {
        QStringList an;
        for (const char* name : {"fraImport", "fraBuchungen", "fraScandokumente", "fraNivora",
                                 "FraTxtImport", "picBelegarten"}) {
            if (f().window().control(QString::fromUtf8(name))->Visible()) {
                an << QString::fromUtf8(name);
            }
        }
        return an;
    }
    // Visible, enabled, in the tab order: "111".
    static QString zustand(IControl& c) {
        return QStringLiteral("%1%2%3")
            .arg(int(c.Visible()))
            .arg(int(c.Enabled()))
            .arg(int(c.TabStop()));
    }
};

TEST_F(Panels, EachTypeShowsItsPanelCaptionsAndStaffSelection) {
    struct Fall {
        std::uint8_t art;
        QStringList rahmen;
        const char* caption4;
        const char* zustand3;
        const char* zustand1;
        const char* zustand4;
        bool mitarbeiter;
    };
    const Fall faelle[] = {
        {4, {"fraImport", "fraBuchungen"}, "Fehler-MTA", "111", "111", "111", true},
        {5, {"fraImport"}, "Logfiles", "111", "111", "111", false},
        {17, {"fraImport"}, "Logfiles", "111", "111", "111", true},
        {18, {"fraImport"}, "Logfiles", "111", "111", "111", true},
        // The archive jobs keep the frame on show with every directory field locked.
        {20, {"fraImport", "fraScandokumente"}, "Logfiles", "100", "100", "100", false},
        {21, {"fraImport", "fraScandokumente"}, "Logfiles", "100", "100", "100", false},
        {28, {"fraImport", "picBelegarten"}, "Logfiles", "111", "000", "000", true},
        {30, {"fraImport", "fraNivora"}, "Temporäre Importdaten", "111", "111", "111", false},
        {99, {"fraImport", "FraTxtImport"}, "Logfiles", "111", "111", "111", true},
    };
    for (const Fall& c : faelle) {
        SCOPED_TRACE(c.art);
        e.neuesFenster();
        e.typ(c.art);
        EXPECT_EQ(rahmen(), c.rahmen);
        EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Logfiles).Caption(),
                  QString::fromUtf8(c.caption4));
        EXPECT_EQ(zustand(f().txtTextBox(frmEigenschaften::Txt::Importdaten)),
                  QLatin1String(c.zustand3));
        EXPECT_EQ(zustand(f().txtTextBox(frmEigenschaften::Txt::Backup)),
                  QLatin1String(c.zustand1));
        EXPECT_EQ(zustand(f().txtTextBox(frmEigenschaften::Txt::Logfiles)),
                  QLatin1String(c.zustand4));
        ISelection& staff = f().ctlMitarbeiterBuchProp();
        EXPECT_EQ(staff.Visible() && staff.Enabled() && staff.TabStop(), c.mitarbeiter);
        if (c.mitarbeiter) {
            EXPECT_EQ(staff.Mode(), 1);
        }
    }
}

TEST_F(Panels, TypeWithoutPanelKeepsOnlyTheCommonState) {
    e.typ(17);
    e.typ(6);
    EXPECT_EQ(rahmen(), QStringList{QStringLiteral("fraImport")});
    EXPECT_FALSE(f().ctlMitarbeiterBuchProp().Visible());
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Importdaten).ToolTip(),
              QStringLiteral("Verzeichnis der Importdaten auswählen"));
}

TEST_F(Panels, BookingsPanelShowsLogFileAndFollowsForeignFormat) {
    f().chkFremdFormat().setValue(0);
    e.typ(4);
    EXPECT_EQ(f().lblLabel(frmEigenschaften::Lbl::BuchungsLog).Caption(),
              QStringLiteral("/opt/suite/ImportLogBuchungen.txt"));
    EXPECT_TRUE(f().chkCheckBox(frmEigenschaften::Chk::EinfachesLog).Enabled());
    EXPECT_TRUE(f().chkFremdFormat().Enabled());
    EXPECT_FALSE(f().ctlFremdFilter().Enabled());
    EXPECT_FALSE(f().ctlFremdMapping().Enabled());
    EXPECT_FALSE(f().cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei).Enabled());
    EXPECT_EQ(f().ctlMitarbeiterBuchProp().Top(), 1320);

    f().ctlFremdFilter().setText(QStringLiteral("*.csv"));
    f().chkFremdFormat().setValue(1);
    A::mitFremdformat(e.admin());
    EXPECT_TRUE(f().ctlFremdFilter().Enabled());
    EXPECT_TRUE(f().ctlFremdMapping().Enabled());
    EXPECT_TRUE(f().cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei).Enabled());

    // Unticking keeps the texts; only the save leaves them out.
    f().chkFremdFormat().setValue(0);
    A::mitFremdformat(e.admin());
    EXPECT_FALSE(f().ctlFremdFilter().Enabled());
    EXPECT_EQ(f().ctlFremdFilter().Text(), QStringLiteral("*.csv"));

    // Another type hides the panel and takes its fields out of reach.
    e.typ(17);
    EXPECT_FALSE(f().fraBuchungen().Visible());
    EXPECT_FALSE(f().chkFremdFormat().Enabled());
    EXPECT_FALSE(f().chkFremdFormat().TabStop());
}

TEST_F(Panels, DocumentTypesThenCustomersBringBackEmptiedDirectories) {
    f().txtTextBox(frmEigenschaften::Txt::Backup).setText(QStringLiteral("/sicher"));
    f().txtTextBox(frmEigenschaften::Txt::Logfiles).setText(QStringLiteral("/log"));
    f().txtTextBox(frmEigenschaften::Txt::Backup).setTop(720);
    e.typ(28);
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Backup).Text(), QString());
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Logfiles).Text(), QString());
    EXPECT_EQ(zustand(f().cmdCommandButton(frmEigenschaften::Cmd::Backupverzeichnis)),
              QStringLiteral("000"));
    EXPECT_EQ(zustand(f().cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis)),
              QStringLiteral("000"));
    EXPECT_EQ(zustand(f().cmdCommandButton(frmEigenschaften::Cmd::Importverzeichnis)),
              QStringLiteral("111"));
    EXPECT_EQ(f().ctlMitarbeiterBuchProp().Top(), 720);
    EXPECT_TRUE(f().grdBeleg().Visible());
    EXPECT_FALSE(f().grdBeleg().TabStop());

    e.typ(17);
    EXPECT_EQ(zustand(f().txtTextBox(frmEigenschaften::Txt::Backup)), QStringLiteral("111"));
    EXPECT_EQ(zustand(f().txtTextBox(frmEigenschaften::Txt::Logfiles)), QStringLiteral("111"));
    EXPECT_EQ(zustand(f().cmdCommandButton(frmEigenschaften::Cmd::Backupverzeichnis)),
              QStringLiteral("111"));
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Backup).Text(), QString());
    EXPECT_FALSE(f().grdBeleg().Visible());
    EXPECT_EQ(f().ctlMitarbeiterBuchProp().Top(), 1320);
}

TEST_F(Panels, DealerAndTextImportMoveTheFramesAndKeepTheirCaptions) {
    e.typ(30);
    EXPECT_EQ(f().fraNivora().Top(), 600);
    EXPECT_EQ(f().fraImport().Top(), 600 + 500 + 120);
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Importdaten).Caption(),
              QStringLiteral("Lesen aus"));
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Backup).Caption(),
              QStringLiteral("Verschieben in"));
    EXPECT_TRUE(f().cboComboBox(frmEigenschaften::Cbo::Nivora).Enabled());

    // The captions stay until the window is made anew; the frame goes back.
    e.typ(17);
    EXPECT_EQ(f().fraImport().Top(), 600);
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Importdaten).Caption(),
              QStringLiteral("Lesen aus"));
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Logfiles).Caption(),
              QStringLiteral("Logfiles"));
    EXPECT_FALSE(f().fraNivora().Visible());
    EXPECT_FALSE(f().cboComboBox(frmEigenschaften::Cbo::Nivora).Enabled());

    e.typ(99);
    EXPECT_EQ(f().FraTxtImport().Top(), 600);
    EXPECT_EQ(f().fraImport().Top(), 600 + 900);
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Importdaten).Caption(),
              QStringLiteral("Importformat"));
    EXPECT_EQ(f().txtTextBox(frmEigenschaften::Txt::Importdaten).ToolTip(),
              QStringLiteral("Verzeichnis für das Importformat"));
    EXPECT_TRUE(f().ctlOptFileName(frmEigenschaften::OptDatei::Skript).Visible());
    EXPECT_TRUE(f().cmdOptFileName(frmEigenschaften::OptDatei::Textdatei).TabStop());

    // Switching twice does not move the frame further down.
    e.typ(99);
    EXPECT_EQ(f().fraImport().Top(), 600 + 900);
}

TEST_F(Panels, ArchiveLoginAddsItsModeBit) {
    f().ctlMitarbeiter().setMode(1);
    e.typ(20);
    EXPECT_EQ(f().ctlMitarbeiter().Mode(), 5);
    EXPECT_TRUE(f().ctlKennwort().Enabled());
    EXPECT_TRUE(f().ctlKennwort().TabStop());
    EXPECT_FALSE(f().ctlMitarbeiterBuchProp().Enabled());
    e.typ(17);
    EXPECT_FALSE(f().fraScandokumente().Visible());
    EXPECT_FALSE(f().ctlKennwort().Enabled());
}

TEST_F(Panels, ClientKindSetsModeEnabledStateAndId) {
    ISelection& m = f().ctlMandant();
    struct Fall {
        std::uint8_t kind;
        long mode;
        bool enabled;
        long id;
    };
    // From a client with id 7 in client mode each time.
    const Fall faelle[] = {{1, 0, true, 7},  {2, 1, true, 0},  {3, 0, false, 0},
                           {4, 1, false, 0}, {5, 1, false, 0}, {9, 0, true, 7}};
    for (const Fall& c : faelle) {
        SCOPED_TRACE(c.kind);
        m.setMode(0);
        m.setEnabled(false);
        m.setId(7);
        A::mandKanz(e.admin(), c.kind);
        EXPECT_EQ(m.Mode(), c.mode);
        EXPECT_EQ(m.Enabled(), c.enabled);
        EXPECT_EQ(m.Id(), c.id);
    }
}

TEST_F(Panels, SingleKindInstallationFixesTheClient) {
    e.w.props().plAktenTyp = 2;
    e.w.props().plManId = 12;
    f().ctlMandant().setId(3);
    A::mandKanz(e.admin(), 2);
    EXPECT_EQ(f().ctlMandant().Id(), 12);
    EXPECT_FALSE(f().ctlMandant().Enabled());
}

TEST_F(Panels, MappingDialogStartsInTheImportDirectoryOrTheStandardPath) {
    auto& dialog = dynamic_cast<HeadlessFileDialog&>(f().ctlCommonDialog());
    f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QStringLiteral("/imp"));
    f().ctlFremdMapping().setText(QStringLiteral("alt.map"));
    A::mappingDatei(e.admin());
    EXPECT_EQ(dialog.lastSettings().title, QStringLiteral("Mappingdatei auswählen"));
    EXPECT_EQ(dialog.lastSettings().initialDirectory, QStringLiteral("/imp"));
    EXPECT_EQ(dialog.lastSettings().fileName, QStringLiteral("alt.map"));
    EXPECT_TRUE(dialog.lastSettings().mustExist);
    EXPECT_EQ(f().ctlFremdMapping().Text(), QStringLiteral("alt.map"));

    A::standardPfad(e.admin()) = QStringLiteral("/standard");
    f().txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QString());
    A::mappingDatei(e.admin());
    EXPECT_EQ(dialog.lastSettings().initialDirectory, QStringLiteral("/standard"));
}

TEST_F(Panels, NothingHappensWithoutTheEditor) {
    AdminJobTestAccess::eigenschaften(e.admin()).reset();
    A::datenart(e.admin(), 4);
    A::mandKanz(e.admin(), 2);
    A::mitFremdformat(e.admin());
    EXPECT_TRUE(e.w.ui->reports.empty());
}

}  // namespace
