#pragma once

#include <QDateTime>
#include <functional>

#include "ui/WindowContract.h"

// The job editor: the job's general data and its type's panel on page 0 of the tab control,
// its schedules on page 1, the closing buttons and the bar of the job commands. The window
// raises its events and keeps only its own small behaviour: the clock line, the help key and
// the schedule buttons that wait for the grid's focus.
class frmEigenschaften : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmEigenschaften(std::unique_ptr<IWindow> window);

    // The indexes of the control arrays, by what each control is for.
    struct Cmd {
        static constexpr int Ok = 0;
        static constexpr int Abbrechen = 1;
        static constexpr int Importverzeichnis = 2;
        static constexpr int ZeitplanNeu = 3;
        static constexpr int ZeitplanBearbeiten = 4;
        static constexpr int ZeitplanLoeschen = 5;
        static constexpr int Backupverzeichnis = 6;
        static constexpr int Uebernehmen = 7;
        static constexpr int Logverzeichnis = 8;
        static constexpr int ZeitplanKopieren = 9;
        static constexpr int Mappingdatei = 10;
        static constexpr int Ausfuehrungsplan = 11;  // the plan of this job's starts
        static constexpr int Anzahl = 12;
    };
    struct Txt {
        static constexpr int Name = 0;
        static constexpr int Backup = 1;
        static constexpr int Beschreibung = 2;
        static constexpr int Importdaten = 3;
        static constexpr int Logfiles = 4;
    };
    struct Cbo {
        static constexpr int Auftragsart = 0;
        static constexpr int MandKanz = 2;
        static constexpr int Nivora = 3;
    };
    struct Chk {
        static constexpr int Aktiviert = 0;
        static constexpr int EinfachesLog = 1;
    };
    struct Lbl {
        static constexpr int RechnerDatum = 0;
        static constexpr int Erstellt = 1;
        static constexpr int ErstelltDatum = 2;
        static constexpr int BuchungsLog = 3;
    };
    // The import script and the text file it reads, with their choice buttons.
    struct OptDatei {
        static constexpr int Skript = 0;
        static constexpr int Textdatei = 1;
    };
    struct Tab {
        static constexpr int Allgemein = 0;
        static constexpr int Zeitplaene = 1;
    };

    ITextBox& txtTextBox(int index) { return get<ITextBox>(QStringLiteral("txtTextBox"), index); }
    IComboBox& cboComboBox(int index) {
        return get<IComboBox>(QStringLiteral("cboComboBox"), index);
    }
    ICheckBox& chkCheckBox(int index) {
        return get<ICheckBox>(QStringLiteral("chkCheckBox"), index);
    }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }
    ILabel& lblLabel(int index) { return get<ILabel>(QStringLiteral("lblLabel"), index); }
    ITextBox& ctlOptFileName(int index) {
        return get<ITextBox>(QStringLiteral("ctlOptFileName"), index);
    }
    IButton& cmdOptFileName(int index) {
        return get<IButton>(QStringLiteral("cmdOptFileName"), index);
    }
    ISelection& ctlMandant() { return get<ISelection>(QStringLiteral("ctlMandant")); }
    ISelection& ctlMitarbeiterBuchProp() {
        return get<ISelection>(QStringLiteral("ctlMitarbeiterBuchProp"));
    }
    ISelection& ctlMitarbeiter() { return get<ISelection>(QStringLiteral("ctlMitarbeiter")); }
    ILabel& lblLetzteAenderung() { return get<ILabel>(QStringLiteral("lblLetzteAenderung")); }
    ILabel& lblBelegarten() { return get<ILabel>(QStringLiteral("lblBelegarten")); }
    ITimer& ctlTimer() { return get<ITimer>(QStringLiteral("ctlTimer")); }
    IFrame& fraImport() { return get<IFrame>(QStringLiteral("fraImport")); }
    IFrame& fraBuchungen() { return get<IFrame>(QStringLiteral("fraBuchungen")); }
    IFrame& fraScandokumente() { return get<IFrame>(QStringLiteral("fraScandokumente")); }
    IFrame& fraNivora() { return get<IFrame>(QStringLiteral("fraNivora")); }
    IFrame& FraTxtImport() { return get<IFrame>(QStringLiteral("FraTxtImport")); }
    IPicture& picBelegarten() { return get<IPicture>(QStringLiteral("picBelegarten")); }
    ICheckBox& chkFremdFormat() { return get<ICheckBox>(QStringLiteral("chkFremdFormat")); }
    ITextBox& ctlFremdFilter() { return get<ITextBox>(QStringLiteral("ctlFremdFilter")); }
    ITextBox& ctlFremdMapping() { return get<ITextBox>(QStringLiteral("ctlFremdMapping")); }
    ITextBox& ctlKennwort() { return get<ITextBox>(QStringLiteral("ctlKennwort")); }
    IGrid& grdBeleg() { return get<IGrid>(QStringLiteral("grdBeleg")); }
    IGrid& grdZeitplan() { return get<IGrid>(QStringLiteral("grdZeitplan")); }
    ITabControl& tabControl() { return get<ITabControl>(QStringLiteral("tabControl")); }
    IToolBar& tbrMain() { return get<IToolBar>(QStringLiteral("tbrMain")); }
    IFileDialog& ctlCommonDialog() { return get<IFileDialog>(QStringLiteral("ctlCommonDialog")); }
    IDirDialog& ctlDirDialog() { return get<IDirDialog>(QStringLiteral("ctlDirDialog")); }

    // A button's click; Cancel (Cmd::Abbrechen) also when the window is closed or goes away.
    std::function<void(int index)> evFrmEigenschaftenCommandButtonClicked;
    // A double click in the schedules, with the grid's current row.
    std::function<void(int row)> evZeitplanEdit;
    // The user picked an item of a combo box.
    std::function<void(int index)> evFrmEigenschaftenComboBoxClicked;
    std::function<void()> evCTLMandantChange;
    // The user changed something: a key in a text field, a tick, a selection.
    std::function<void()> evGeaendert;
    // The text of a directory or file field changed, typed or set by code.
    std::function<void()> evImportfileChanged;
    std::function<void(int row)> evGrdBelegAfterEdit;
    std::function<void(const QString& tool)> evToolClick;
    // The choice button of the script or the text file (OptDatei).
    std::function<void(int index)> evOptDateiAuswaehlen;
    std::function<void()> evMitFremdformat;
    // A key pressed while the schedule grid has the focus: the grid's own key event, which
    // the controller holds as moGridZeitplan.
    std::function<void(int keyCode, int shift)> grdZeitplan_KeyDown;

  private:
    void onControl(const ControlEvent& e) override;
    void onKeyDown(int keyCode, int shift);
    // F1 without shift: the help topic of the page on show. True when the key is taken.
    bool helpKey(int keyCode, int shift);
    void showTime();

    QDateTime shownTime_;
};
