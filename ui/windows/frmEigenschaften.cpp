#include "ui/windows/frmEigenschaften.h"

#include "common/ColumnLimits.h"
#include "common/ModuleHelpers.h"
#include "common/Services.h"

using contract::fire;
using contract::is;

namespace {

const QString kBar = QStringLiteral("tbrMain");
const QString kBand = QStringLiteral("barMain");
constexpr int kScheduleButtons[] = {frmEigenschaften::Cmd::ZeitplanBearbeiten,
                                    frmEigenschaften::Cmd::ZeitplanLoeschen,
                                    frmEigenschaften::Cmd::ZeitplanKopieren};

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmEigenschaften");
        d_.caption = QStringLiteral("Paket bearbeiten");
        d_.keyPreview = true;  // F1 opens the help of the page on show, wherever the focus is
        d_.width = 720;
        d_.height = 640;

        add("tbrMain", -1, ControlKind::ToolBar);
        ControlDecl& tabs = add("tabControl", -1, ControlKind::TabControl);
        tabs.tabCaptions = QStringList{QStringLiteral("Allgemein"), QStringLiteral("Zeitpläne")};
        general();
        panels();
        schedules();
        add("cmdCommandButton", frmEigenschaften::Cmd::Ok, ControlKind::Button, "OK");
        add("cmdCommandButton", frmEigenschaften::Cmd::Abbrechen, ControlKind::Button, "Abbrechen");
        add("cmdCommandButton", frmEigenschaften::Cmd::Uebernehmen, ControlKind::Button,
            "Ü&bernehmen", "Übernehmen");
        ControlDecl& timer = add("ctlTimer", -1, ControlKind::Timer);
        timer.interval = 100;
        add("ctlCommonDialog", -1, ControlKind::FileDialog);
        add("ctlDirDialog", -1, ControlKind::DirDialog);
        tools();
        return d_;
    }

  private:
    ControlDecl& add(const char* name, int index, ControlKind kind, const char* caption = "",
                     const char* hint = "") {
        ControlDecl c;
        c.name = QString::fromUtf8(name);
        c.index = index;
        c.kind = kind;
        c.caption = QString::fromUtf8(caption);
        c.hint = QString::fromUtf8(hint);
        c.container = container_;
        c.tabPage = page_;
        d_.controls << c;
        return d_.controls.last();
    }

    void general() {
        page_ = 0;
        add("txtTextBox", frmEigenschaften::Txt::Name, ControlKind::TextBox, "Name").maxLength =
            ColumnLimits::kAuftragName;
        add("cboComboBox", frmEigenschaften::Cbo::Auftragsart, ControlKind::ComboBox, "Auftragsart",
            "Datenart auswählen");
        add("chkCheckBox", frmEigenschaften::Chk::Aktiviert, ControlKind::CheckBox, "Aktiviert",
            "Aktivieren");
        add("cboComboBox", frmEigenschaften::Cbo::MandKanz, ControlKind::ComboBox);
        add("ctlMandant", -1, ControlKind::Selection);
        ControlDecl& description = add("txtTextBox", frmEigenschaften::Txt::Beschreibung,
                                       ControlKind::TextBox, "Beschreibung");
        description.multiLine = true;
        add("lblLabel", frmEigenschaften::Lbl::Erstellt, ControlKind::Label, "Erstellt");
        add("lblLabel", frmEigenschaften::Lbl::ErstelltDatum, ControlKind::Label, "Erstellt Datum");
        add("lblLetzteAenderung", -1, ControlKind::Label);
        add("lblLabel", frmEigenschaften::Lbl::RechnerDatum, ControlKind::Label);
    }

    // The panels of the job types share one place of page 0; the type shows its own.
    void panels() {
        page_ = 0;
        add("fraNivora", -1, ControlKind::Frame);
        within("fraNivora");
        add("cboComboBox", frmEigenschaften::Cbo::Nivora, ControlKind::ComboBox, "Daten");
        within("");

        add("FraTxtImport", -1, ControlKind::Frame);
        within("FraTxtImport");
        add("ctlOptFileName", frmEigenschaften::OptDatei::Skript, ControlKind::TextBox,
            "Importskript", "Skriptdatei für den Textimport eintragen.");
        add("cmdOptFileName", frmEigenschaften::OptDatei::Skript, ControlKind::Button, "",
            "Anzeige des Auswahldialogs...");
        add("ctlOptFileName", frmEigenschaften::OptDatei::Textdatei, ControlKind::TextBox,
            "Textdatei", "Textdatei für das Import-Skript eintragen");
        add("cmdOptFileName", frmEigenschaften::OptDatei::Textdatei, ControlKind::Button, "",
            "Anzeige des Auswahldialogs...");
        within("");

        add("fraImport", -1, ControlKind::Frame);
        within("fraImport");
        add("txtTextBox", frmEigenschaften::Txt::Importdaten, ControlKind::TextBox, "Importdaten",
            "Verzeichnis der Importdaten auswählen")
            .maxLength = ColumnLimits::kMTAPath;
        add("cmdCommandButton", frmEigenschaften::Cmd::Importverzeichnis, ControlKind::Button,
            "...", "Verzeichnis der Importdaten auswählen");
        add("txtTextBox", frmEigenschaften::Txt::Backup, ControlKind::TextBox, "Backup",
            "Verzeichnis für das Backup der importierten Dateien");
        add("cmdCommandButton", frmEigenschaften::Cmd::Backupverzeichnis, ControlKind::Button,
            "...", "Verzeichnis für das Backup der importierten Dateien");
        add("txtTextBox", frmEigenschaften::Txt::Logfiles, ControlKind::TextBox, "Logfiles",
            "Verzeichnis für die Logfiles")
            .maxLength = ColumnLimits::kErrorMTA;
        add("cmdCommandButton", frmEigenschaften::Cmd::Logverzeichnis, ControlKind::Button, "...",
            "Verzeichnis für die Logfiles");
        add("ctlMitarbeiterBuchProp", -1, ControlKind::Selection, "",
            "Mitarbeiter für die Verwendung der Importoptionen");
        within("");

        add("fraBuchungen", -1, ControlKind::Frame);
        within("fraBuchungen");
        add("chkFremdFormat", -1, ControlKind::CheckBox, "Fremdformat");
        add("chkCheckBox", frmEigenschaften::Chk::EinfachesLog, ControlKind::CheckBox,
            "vereinfachtes Logfile");
        add("ctlFremdFilter", -1, ControlKind::TextBox, "Dateiname",
            "Geben Sie hier bitte ein, in welcher Form die Importdateien vorliegen; z.B. *.csv")
            .maxLength = ColumnLimits::kFremdDateifilter;
        add("ctlFremdMapping", -1, ControlKind::TextBox, "Mappingdatei",
            "Geben Sie hier den Namen der Datei mit den Kontenzuordnungen ein. Diese Datei muss "
            "im Importverzeichnis liegen.")
            .maxLength = ColumnLimits::kFremdMapping;
        add("cmdCommandButton", frmEigenschaften::Cmd::Mappingdatei, ControlKind::Button, "...",
            "Auswahl der Mappingdatei");
        add("lblLabel", frmEigenschaften::Lbl::BuchungsLog, ControlKind::Label);
        within("");

        add("fraScandokumente", -1, ControlKind::Frame);
        within("fraScandokumente");
        add("ctlMitarbeiter", -1, ControlKind::Selection);
        ControlDecl& password = add("ctlKennwort", -1, ControlKind::TextBox, "Kennwort");
        password.password = true;
        within("");

        add("picBelegarten", -1, ControlKind::Picture);
        within("picBelegarten");
        add("lblBelegarten", -1, ControlKind::Label, "Belegarten");
        ControlDecl& documents = add("grdBeleg", -1, ControlKind::Grid);
        documents.editable = true;  // the user ticks the document types
        within("");
    }

    void schedules() {
        page_ = 1;
        add("grdZeitplan", -1, ControlKind::Grid);
        add("cmdCommandButton", frmEigenschaften::Cmd::ZeitplanNeu, ControlKind::Button, "&Neu");
        add("cmdCommandButton", frmEigenschaften::Cmd::ZeitplanBearbeiten, ControlKind::Button,
            "&Bearbeiten")
            .enabled = false;
        add("cmdCommandButton", frmEigenschaften::Cmd::ZeitplanLoeschen, ControlKind::Button,
            "&Löschen")
            .enabled = false;
        add("cmdCommandButton", frmEigenschaften::Cmd::ZeitplanKopieren, ControlKind::Button,
            "&Kopieren", "Zeitplan auf andere Aufträge kopieren")
            .enabled = false;
        add("cmdCommandButton", frmEigenschaften::Cmd::Ausfuehrungsplan, ControlKind::Button,
            "Aus&führungsplan", "Die nächsten Starts dieses Auftrags");
        page_ = -1;
    }

    void tools() {
        auto tool = [&](const char* name, const char* caption, const char* hint) {
            d_.tools << ToolDecl{kBar,
                                 kBand,
                                 QString::fromUtf8(name),
                                 QString::fromUtf8(caption),
                                 QString::fromUtf8(hint),
                                 0};
        };
        auto separator = [&] { d_.tools << ToolDecl{kBar, kBand, {}, {}, {}, 0}; };
        tool("new", "&Neu", "Neu (Strg-N)");
        separator();
        tool("save", "&Speichern", "Speichern");
        separator();
        tool("delete", "&Löschen", "Löschen");
        separator();
        tool("first", "Erster Eintrag", "Erster Auftrag");
        tool("previous", "Zurück", "vorheriger Auftrag");
        tool("next", "Vor", "nächster Auftrag");
        tool("last", "Letzter Eintrag", "Letzter Auftrag");
        separator();
        tool("Auftragsverlauf", "Auftragsverlauf", "Auftragsverlauf zeigen");
        separator();
        tool("Auftrag ausführen", "Auftrag ausführen", "Auftrag ausführen");
        separator();
        tool("Logdaten Dienst", "Logdaten Dienst", "Anzeigen Logdaten Dienst");
        tool("Logdaten Dienst löschen", "Logdaten Dienst löschen", "Löschen Logdaten Dienst");
        separator();
        tool("Logdaten Aufträge", "Logdaten Aufträge", "Anzeigen Logdaten Auftrag");
        tool("Logdaten Auftrag löschen", "Logdaten Auftrag löschen", "Löschen Logdaten Auftrag");
    }

    // Controls added from now on stand in that frame or picture ("" for the page).
    void within(const char* container) {
        container_ = QString::fromUtf8(container);
        page_ = container_.isEmpty() ? 0 : -1;
    }

    WindowDecl d_;
    QString container_;
    int page_ = -1;
};

}  // namespace

const WindowDecl& frmEigenschaften::declaration() {
    static const WindowDecl decl = Declaration().build();
    return decl;
}

frmEigenschaften::frmEigenschaften(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    // The schedules of a job wait until it has an id.
    tabControl().setTabEnabled(Tab::Zeitplaene, false);

    WindowEvents events;
    events.onKeyDown = [this](int keyCode, int shift) { onKeyDown(keyCode, shift); };
    // Closing by the frame counts as Cancel; so does the window's going away.
    events.onQueryUnload = [this](bool&) {
        fire(evFrmEigenschaftenCommandButtonClicked, Cmd::Abbrechen);
    };
    events.onUnload = [this] { fire(evFrmEigenschaftenCommandButtonClicked, Cmd::Abbrechen); };
    listen(std::move(events));
}

void frmEigenschaften::onControl(const ControlEvent& e) {
    switch (e.type) {
        case EventType::Click:
            if (is(e, "cmdCommandButton")) {
                fire(evFrmEigenschaftenCommandButtonClicked, e.index);
            } else if (is(e, "cboComboBox")) {
                fire(evFrmEigenschaftenComboBoxClicked, e.index);
            } else if (is(e, "chkCheckBox")) {
                fire(evGeaendert);
            } else if (is(e, "cmdOptFileName")) {
                fire(evOptDateiAuswaehlen, e.index);
            } else if (is(e, "chkFremdFormat")) {
                fire(evMitFremdformat);
            }
            break;
        case EventType::DblClick:
            if (is(e, "grdZeitplan")) {
                fire(evZeitplanEdit, grdZeitplan().Row());
            }
            break;
        case EventType::Change:
            if (is(e, "ctlMandant")) {
                fire(evCTLMandantChange);
            } else if (is(e, "ctlFremdFilter") || is(e, "ctlFremdMapping") ||
                       is(e, "ctlMitarbeiter") || is(e, "ctlMitarbeiterBuchProp")) {
                fire(evGeaendert);
            } else if (is(e, "txtTextBox") || is(e, "ctlOptFileName")) {
                fire(evImportfileChanged);
            }
            break;
        case EventType::KeyDown:
            if (helpKey(e.keyCode, e.shift)) {
                break;
            }
            if (is(e, "txtTextBox") || is(e, "ctlOptFileName")) {
                fire(evGeaendert);
            } else if (is(e, "grdZeitplan")) {
                fire(grdZeitplan_KeyDown, e.keyCode, e.shift);
            }
            break;
        case EventType::AfterEdit:
            if (is(e, "grdBeleg")) {
                fire(evGrdBelegAfterEdit, e.row);
            }
            break;
        case EventType::ToolClick:
            if (is(e, "tbrMain")) {
                fire(evToolClick, e.tool);
            }
            break;
        case EventType::GotFocus:
            if (is(e, "grdZeitplan")) {
                for (int index : kScheduleButtons) {
                    cmdCommandButton(index).setEnabled(true);
                }
            }
            break;
        case EventType::Timer:
            if (is(e, "ctlTimer")) {
                showTime();
            }
            break;
        default:
            break;
    }
}

// The window sees every key first; a key other than the help key then counts as the focused
// text field's own, as it would without the preview.
void frmEigenschaften::onKeyDown(int keyCode, int shift) {
    if (helpKey(keyCode, shift)) {
        return;
    }
    if (grdZeitplan().Focused()) {
        fire(grdZeitplan_KeyDown, keyCode, shift);
        return;
    }
    for (const ControlDecl& c : window().declaration().controls) {
        if (c.name != QLatin1String("txtTextBox") && c.name != QLatin1String("ctlOptFileName")) {
            continue;
        }
        IControl* control = window().control(c.name, c.index);
        if (control && control->Focused()) {
            fire(evGeaendert);
            return;
        }
    }
}

bool frmEigenschaften::helpKey(int keyCode, int shift) {
    if (keyCode != KeyCode::F1 || shift != 0) {
        return false;
    }
    gShowWikiHelpExterneProgramme(tabControl().Tab() == Tab::Zeitplaene ? HelpKeys::kSchedules
                                                                        : HelpKeys::kJobProperties);
    return true;
}

void frmEigenschaften::showTime() {
    const QDateTime now = clockNow();
    const QDateTime shown =
        QDateTime(now.date(), QTime(now.time().hour(), now.time().minute(), now.time().second()));
    if (shown == shownTime_) {
        return;
    }
    shownTime_ = shown;
    lblLabel(Lbl::RechnerDatum)
        .setCaption(QStringLiteral("Aktuelles Rechnerdatum: ") +
                    shown.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")));
}
