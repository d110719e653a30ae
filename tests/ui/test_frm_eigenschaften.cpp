#include <gtest/gtest.h>

#include "common/ModuleHelpers.h"
#include "headless/HeadlessKit.h"
#include "tests/common/CommonFakes.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

struct HelpRecorder : CoreHelpClass {
    explicit HelpRecorder(QStringList* topics) : topics_(topics) {}
    long ShowHelp(const QString& file, const QString& topic) override {
        *topics_ << file + QStringLiteral("#") + topic;
        return 0;
    }
    QStringList* topics_;
};

// The editor in memory, shown, with every event it raises kept as text.
struct Editor {
    Editor() : scope(services_()) {
        auto w = factory.create(frmEigenschaften::declaration());
        window = dynamic_cast<HeadlessWindow*>(w.get());
        form = std::make_unique<frmEigenschaften>(std::move(w));
        auto note = [this](const QString& text) { events << text; };
        form->evFrmEigenschaftenCommandButtonClicked = [=](int i) {
            note(QStringLiteral("CommandButtonClicked %1").arg(i));
        };
        form->evZeitplanEdit = [=](int row) { note(QStringLiteral("ZeitplanEdit %1").arg(row)); };
        form->evFrmEigenschaftenComboBoxClicked = [=](int i) {
            note(QStringLiteral("ComboBoxClicked %1").arg(i));
        };
        form->evCTLMandantChange = [=] { note(QStringLiteral("CTLMandantChange")); };
        form->evGeaendert = [=] { note(QStringLiteral("Geaendert")); };
        form->evImportfileChanged = [=] { note(QStringLiteral("ImportfileChanged")); };
        form->evGrdBelegAfterEdit = [=](int row) {
            note(QStringLiteral("GrdBelegAfterEdit %1").arg(row));
        };
        form->evToolClick = [=](const QString& tool) { note(QStringLiteral("ToolClick ") + tool); };
        form->evOptDateiAuswaehlen = [=](int i) {
            note(QStringLiteral("OptDateiAuswaehlen %1").arg(i));
        };
        form->evMitFremdformat = [=] { note(QStringLiteral("MitFremdformat")); };
        form->window().Show(false);
    }

    Services services_() {
        ui = std::make_shared<RecordingUi>();
        Services s = recordingServices(ui);
        s.newCoreHelp = [this] { return std::make_unique<HelpRecorder>(&help); };
        return s;
    }

    HeadlessControl& control(const char* name, int index = -1) {
        HeadlessControl* c = window->headlessControl(QString::fromUtf8(name), index);
        if (!c) {
            throw std::runtime_error(name);
        }
        return *c;
    }
    QStringList take() { return std::exchange(events, {}); }

    std::shared_ptr<RecordingUi> ui;
    QStringList help;
    ScopedServices scope;
    HeadlessWindowFactory factory;
    HeadlessWindow* window = nullptr;
    std::unique_ptr<frmEigenschaften> form;
    QStringList events;
};

const ControlDecl* find(const WindowDecl& d, const QString& name, int index = -1) {
    for (const ControlDecl& c : d.controls) {
        if (c.name == name && c.index == index) {
            return &c;
        }
    }
    return nullptr;
}

struct Expected {
    const char* name;
    int index;
    ControlKind kind;
    const char* caption;
    const char* hint;
    const char* container;
    int page;
};

TEST(FrmEigenschaftenDeclaration, EveryControlWithItsCaptionHintAndPlace) {
    const WindowDecl& d = frmEigenschaften::declaration();
    EXPECT_EQ(d.name, "frmEigenschaften");
    EXPECT_EQ(d.caption, "Paket bearbeiten");
    EXPECT_TRUE(d.keyPreview);
    const Expected all[] = {
        {"txtTextBox", 0, ControlKind::TextBox, "Name", "", "", 0},
        {"txtTextBox", 2, ControlKind::TextBox, "Beschreibung", "", "", 0},
        {"cboComboBox", 0, ControlKind::ComboBox, "Auftragsart", "Datenart auswählen", "", 0},
        {"chkCheckBox", 0, ControlKind::CheckBox, "Aktiviert", "Aktivieren", "", 0},
        {"cboComboBox", 2, ControlKind::ComboBox, "", "", "", 0},
        {"ctlMandant", -1, ControlKind::Selection, "", "", "", 0},
        {"lblLabel", 1, ControlKind::Label, "Erstellt", "", "", 0},
        {"lblLabel", 2, ControlKind::Label, "Erstellt Datum", "", "", 0},
        {"lblLabel", 0, ControlKind::Label, "", "", "", 0},
        {"lblLetzteAenderung", -1, ControlKind::Label, "", "", "", 0},
        {"ctlTimer", -1, ControlKind::Timer, "", "", "", -1},
        {"fraImport", -1, ControlKind::Frame, "", "", "", 0},
        {"txtTextBox", 3, ControlKind::TextBox, "Importdaten",
         "Verzeichnis der Importdaten auswählen", "fraImport", -1},
        {"cmdCommandButton", 2, ControlKind::Button, "...", "Verzeichnis der Importdaten auswählen",
         "fraImport", -1},
        {"txtTextBox", 1, ControlKind::TextBox, "Backup",
         "Verzeichnis für das Backup der importierten Dateien", "fraImport", -1},
        {"cmdCommandButton", 6, ControlKind::Button, "...",
         "Verzeichnis für das Backup der importierten Dateien", "fraImport", -1},
        {"txtTextBox", 4, ControlKind::TextBox, "Logfiles", "Verzeichnis für die Logfiles",
         "fraImport", -1},
        {"cmdCommandButton", 8, ControlKind::Button, "...", "Verzeichnis für die Logfiles",
         "fraImport", -1},
        {"ctlMitarbeiterBuchProp", -1, ControlKind::Selection, "",
         "Mitarbeiter für die Verwendung der Importoptionen", "fraImport", -1},
        {"fraBuchungen", -1, ControlKind::Frame, "", "", "", 0},
        {"chkFremdFormat", -1, ControlKind::CheckBox, "Fremdformat", "", "fraBuchungen", -1},
        {"chkCheckBox", 1, ControlKind::CheckBox, "vereinfachtes Logfile", "", "fraBuchungen", -1},
        {"ctlFremdFilter", -1, ControlKind::TextBox, "Dateiname",
         "Geben Sie hier bitte ein, in welcher Form die Importdateien vorliegen; z.B. *.csv",
         "fraBuchungen", -1},
        {"ctlFremdMapping", -1, ControlKind::TextBox, "Mappingdatei",
         "Geben Sie hier den Namen der Datei mit den Kontenzuordnungen ein. Diese Datei muss im "
         "Importverzeichnis liegen.",
         "fraBuchungen", -1},
        {"cmdCommandButton", 10, ControlKind::Button, "...", "Auswahl der Mappingdatei",
         "fraBuchungen", -1},
        {"lblLabel", 3, ControlKind::Label, "", "", "fraBuchungen", -1},
        {"fraScandokumente", -1, ControlKind::Frame, "", "", "", 0},
        {"ctlMitarbeiter", -1, ControlKind::Selection, "", "", "fraScandokumente", -1},
        {"ctlKennwort", -1, ControlKind::TextBox, "Kennwort", "", "fraScandokumente", -1},
        {"fraNivora", -1, ControlKind::Frame, "", "", "", 0},
        {"cboComboBox", 3, ControlKind::ComboBox, "Daten", "", "fraNivora", -1},
        {"FraTxtImport", -1, ControlKind::Frame, "", "", "", 0},
        {"ctlOptFileName", 0, ControlKind::TextBox, "Importskript",
         "Skriptdatei für den Textimport eintragen.", "FraTxtImport", -1},
        {"cmdOptFileName", 0, ControlKind::Button, "", "Anzeige des Auswahldialogs...",
         "FraTxtImport", -1},
        {"ctlOptFileName", 1, ControlKind::TextBox, "Textdatei",
         "Textdatei für das Import-Skript eintragen", "FraTxtImport", -1},
        {"cmdOptFileName", 1, ControlKind::Button, "", "Anzeige des Auswahldialogs...",
         "FraTxtImport", -1},
        {"picBelegarten", -1, ControlKind::Picture, "", "", "", 0},
        {"lblBelegarten", -1, ControlKind::Label, "Belegarten", "", "picBelegarten", -1},
        {"grdBeleg", -1, ControlKind::Grid, "", "", "picBelegarten", -1},
        {"grdZeitplan", -1, ControlKind::Grid, "", "", "", 1},
        {"cmdCommandButton", 3, ControlKind::Button, "&Neu", "", "", 1},
        {"cmdCommandButton", 4, ControlKind::Button, "&Bearbeiten", "", "", 1},
        {"cmdCommandButton", 5, ControlKind::Button, "&Löschen", "", "", 1},
        {"cmdCommandButton", 9, ControlKind::Button, "&Kopieren",
         "Zeitplan auf andere Aufträge kopieren", "", 1},
        {"cmdCommandButton", 11, ControlKind::Button, "Aus&führungsplan",
         "Die nächsten Starts dieses Auftrags", "", 1},
        {"cmdCommandButton", 0, ControlKind::Button, "OK", "", "", -1},
        {"cmdCommandButton", 1, ControlKind::Button, "Abbrechen", "", "", -1},
        {"cmdCommandButton", 7, ControlKind::Button, "Ü&bernehmen", "Übernehmen", "", -1},
        {"ctlCommonDialog", -1, ControlKind::FileDialog, "", "", "", -1},
        {"ctlDirDialog", -1, ControlKind::DirDialog, "", "", "", -1},
        {"tbrMain", -1, ControlKind::ToolBar, "", "", "", -1},
        {"tabControl", -1, ControlKind::TabControl, "", "", "", -1},
    };
    for (const Expected& e : all) {
        SCOPED_TRACE(QStringLiteral("%1(%2)").arg(e.name).arg(e.index).toStdString());
        const ControlDecl* c = find(d, QString::fromUtf8(e.name), e.index);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->kind, e.kind);
        EXPECT_EQ(c->caption, QString::fromUtf8(e.caption));
        EXPECT_EQ(c->hint, QString::fromUtf8(e.hint));
        EXPECT_EQ(c->container, QString::fromUtf8(e.container));
        EXPECT_EQ(c->tabPage, e.page);
    }
    EXPECT_EQ(d.controls.size(), static_cast<qsizetype>(std::size(all)));
    EXPECT_EQ(find(d, QStringLiteral("tabControl"))->tabCaptions,
              (QStringList{"Allgemein", "Zeitpläne"}));
    EXPECT_TRUE(find(d, QStringLiteral("txtTextBox"), 2)->multiLine);
    EXPECT_TRUE(find(d, QStringLiteral("grdBeleg"))->editable);
    EXPECT_FALSE(find(d, QStringLiteral("grdZeitplan"))->editable);
    EXPECT_EQ(find(d, QStringLiteral("ctlTimer"))->interval, 100);
}

TEST(FrmEigenschaftenDeclaration, TheToolsOfTheBarInOrder) {
    QStringList lines;
    for (const ToolDecl& t : frmEigenschaften::declaration().tools) {
        EXPECT_EQ(t.bar, "tbrMain");
        EXPECT_EQ(t.band, "barMain");
        lines << (t.isSeparator() ? QStringLiteral("-") : t.name + "|" + t.caption + "|" + t.hint);
    }
    EXPECT_EQ(lines, (QStringList{
                         "new|&Neu|Neu (Strg-N)",
                         "-",
                         "save|&Speichern|Speichern",
                         "-",
                         "delete|&Löschen|Löschen",
                         "-",
                         "first|Erster Eintrag|Erster Auftrag",
                         "previous|Zurück|vorheriger Auftrag",
                         "next|Vor|nächster Auftrag",
                         "last|Letzter Eintrag|Letzter Auftrag",
                         "-",
                         "Auftragsverlauf|Auftragsverlauf|Auftragsverlauf zeigen",
                         "-",
                         "Auftrag ausführen|Auftrag ausführen|Auftrag ausführen",
                         "-",
                         "Logdaten Dienst|Logdaten Dienst|Anzeigen Logdaten Dienst",
                         "Logdaten Dienst löschen|Logdaten Dienst löschen|Löschen Logdaten Dienst",
                         "-",
                         "Logdaten Aufträge|Logdaten Aufträge|Anzeigen Logdaten Auftrag",
                         "Logdaten Auftrag löschen|Logdaten Auftrag löschen|Löschen Logdaten "
                         "Auftrag",
                     }));
}

TEST(FrmEigenschaftenWindow, OpensWithTheScheduleButtonsAndPageDisabled) {
    Editor e;
    EXPECT_FALSE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanBearbeiten).Enabled());
    EXPECT_FALSE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanLoeschen).Enabled());
    EXPECT_FALSE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanKopieren).Enabled());
    EXPECT_TRUE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanNeu).Enabled());
    EXPECT_FALSE(e.form->tabControl().TabEnabled(1));
    EXPECT_TRUE(e.form->tabControl().TabEnabled(0));
    EXPECT_EQ(e.form->ctlTimer().Interval(), 100);

    // The grid's focus brings the three buttons.
    e.form->tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, true);
    e.control("tabControl").userTab(1);
    e.control("grdZeitplan").userGridClick(0, 0, false);
    EXPECT_TRUE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanBearbeiten).Enabled());
    EXPECT_TRUE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanLoeschen).Enabled());
    EXPECT_TRUE(e.form->cmdCommandButton(frmEigenschaften::Cmd::ZeitplanKopieren).Enabled());
}

TEST(FrmEigenschaftenWindow, ButtonsCombosAndToolsRaiseTheirIndex) {
    Editor e;
    e.control("cmdCommandButton", frmEigenschaften::Cmd::Uebernehmen).userClick();
    e.control("cmdCommandButton", frmEigenschaften::Cmd::Ok).userClick();
    e.control("cmdCommandButton", frmEigenschaften::Cmd::Importverzeichnis).userClick();
    e.control("cmdOptFileName", frmEigenschaften::OptDatei::Textdatei).userClick();
    e.form->cboComboBox(frmEigenschaften::Cbo::Auftragsart).AddItem(17, QStringLiteral("Siebzehn"));
    e.form->cboComboBox(frmEigenschaften::Cbo::Auftragsart)
        .AddItem(99, QStringLiteral("Textdatei-Import"));
    e.form->cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(17);  // by code: silent
    e.control("cboComboBox", frmEigenschaften::Cbo::Auftragsart).userSelect(99);
    e.control("tbrMain").userTool(QStringLiteral("barMain"), QStringLiteral("next"));
    EXPECT_EQ(e.take(), (QStringList{"CommandButtonClicked 7", "CommandButtonClicked 0",
                                     "CommandButtonClicked 2", "OptDateiAuswaehlen 1",
                                     "ComboBoxClicked 0", "ToolClick next"}));
}

TEST(FrmEigenschaftenWindow, TypingMarksAChangeButACodeChangeOnlyTellsTheFile) {
    Editor e;
    e.form->txtTextBox(frmEigenschaften::Txt::Importdaten).setText(QStringLiteral("C:\\Import"));
    e.form->ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(QStringLiteral("a.opt"));
    EXPECT_EQ(e.take(), (QStringList{"ImportfileChanged", "ImportfileChanged"}));

    e.control("txtTextBox", frmEigenschaften::Txt::Name).userType(QStringLiteral("Neu"));
    EXPECT_EQ(e.take(), (QStringList{"Geaendert", "ImportfileChanged"}));
    e.control("ctlOptFileName", frmEigenschaften::OptDatei::Textdatei)
        .userType(QStringLiteral("x.txt"));
    EXPECT_EQ(e.take(), (QStringList{"Geaendert", "ImportfileChanged"}));

    // A key through the window's preview counts for the text field with the focus.
    e.form->txtTextBox(frmEigenschaften::Txt::Beschreibung).SetFocus();
    e.window->userKey('A', 0);
    EXPECT_EQ(e.take(), (QStringList{"Geaendert"}));

    // Neither the password nor the description's code change marks anything.
    e.form->ctlKennwort().setText(QStringLiteral("geheim"));
    EXPECT_EQ(e.take(), (QStringList{}));
}

TEST(FrmEigenschaftenWindow, TicksAndSelectionsMarkAChange) {
    Editor e;
    e.control("chkCheckBox", frmEigenschaften::Chk::Aktiviert).userClick();
    e.control("chkFremdFormat").userClick();
    e.form->ctlFremdFilter().setText(QStringLiteral("*.csv"));
    e.form->ctlFremdMapping().setText(QStringLiteral("map.txt"));
    e.form->ctlMitarbeiterBuchProp().setId(4);
    e.form->ctlMitarbeiter().setId(5);
    e.form->ctlMandant().setId(7);
    EXPECT_EQ(e.take(), (QStringList{"Geaendert", "MitFremdformat", "Geaendert", "Geaendert",
                                     "Geaendert", "Geaendert", "CTLMandantChange"}));
}

TEST(FrmEigenschaftenWindow, GridsRaiseTheirRows) {
    Editor e;
    IGrid& beleg = e.form->grdBeleg();
    beleg.setCols(2);
    beleg.setRows(3);
    beleg.setFixedRows(1);
    beleg.setColBoolean(1, true);
    e.control("grdBeleg").userGridToggle(2, 1);
    EXPECT_TRUE(beleg.CellChecked(2, 1));

    e.form->tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, true);
    e.control("tabControl").userTab(1);
    IGrid& plan = e.form->grdZeitplan();
    plan.setCols(4);
    plan.setRows(3);
    plan.setFixedRows(1);
    e.control("grdZeitplan").userGridClick(2, 0, true);
    EXPECT_EQ(e.take(), (QStringList{"GrdBelegAfterEdit 2", "ZeitplanEdit 2"}));
}

TEST(FrmEigenschaftenWindow, TheCloseBoxAndTheWindowsEndCountAsCancel) {
    Editor e;
    e.window->userClose();
    EXPECT_EQ(e.take(), (QStringList{"CommandButtonClicked 1", "CommandButtonClicked 1"}));

    Editor byCode;
    byCode.form->window().Unload();
    EXPECT_EQ(byCode.take(), (QStringList{"CommandButtonClicked 1"}));
}

TEST(FrmEigenschaftenWindow, CancelThatDestroysTheWindowEndsCleanly) {
    Editor e;
    int calls = 0;
    e.form->evFrmEigenschaftenCommandButtonClicked = [&](int) {
        ++calls;
        e.form.reset();
    };
    e.window->userClose();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(e.form, nullptr);
}

TEST(FrmEigenschaftenWindow, F1OpensTheHelpOfThePageOnShow) {
    Editor e;
    e.form->txtTextBox(frmEigenschaften::Txt::Name).SetFocus();
    e.window->userKey(KeyCode::F1, 0);
    e.window->userKey(KeyCode::F1, 1);  // with shift: no help, and not a text key either
    e.form->tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, true);
    e.form->tabControl().setTab(frmEigenschaften::Tab::Zeitplaene);
    e.window->userKey(KeyCode::F1, 0);
    EXPECT_EQ(e.help, (QStringList{HelpKeys::kHelpFile + "#" + HelpKeys::kJobProperties,
                                   HelpKeys::kHelpFile + "#" + HelpKeys::kSchedules}));
    EXPECT_EQ(e.take(), (QStringList{"Geaendert"}));
}

TEST(FrmEigenschaftenWindow, TheTimerShowsTheDateWhenItChanges) {
    Editor e;
    auto clock = std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(9, 5, 7)));
    services().clock = clock;
    e.window->tickTimers();
    EXPECT_EQ(e.form->lblLabel(frmEigenschaften::Lbl::RechnerDatum).Caption(),
              "Aktuelles Rechnerdatum: 22.11.2026 09:05:07");
    e.form->lblLabel(frmEigenschaften::Lbl::RechnerDatum).setCaption(QString());
    e.window->tickTimers();  // same second: left alone
    EXPECT_EQ(e.form->lblLabel(frmEigenschaften::Lbl::RechnerDatum).Caption(), "");
    clock->set(QDateTime(QDate(2026, 11, 22), QTime(9, 5, 8)));
    e.window->tickTimers();
    EXPECT_EQ(e.form->lblLabel(frmEigenschaften::Lbl::RechnerDatum).Caption(),
              "Aktuelles Rechnerdatum: 22.11.2026 09:05:08");
}

}  // namespace
