#pragma once

// A controller with its editor built directly, in-memory windows that play the user while a
// window is modal, and file and directory dialogs that give prepared answers.

#include <deque>
#include <functional>

#include "headless/HeadlessWindow.h"
#include "headless/UserActions.h"
#include "tests/app/AppTestWorld.h"
#include "ui/Grid.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmOptTextDatName.h"
#include "ui/windows/frmOptTextDateien.h"

class OptionFilesTestAccess {
  public:
    using E = std::optional<QList<OptionFileEntry>>;
    static std::shared_ptr<frmEigenschaften>& editor(cAdminJob& a) { return a.mofrmEigenschaften; }
    static std::shared_ptr<frmOptTextDateien>& grid(cAdminJob& a) { return a.moFrmTextDateien; }
    static std::shared_ptr<frmOptTextDatName>& name(cAdminJob& a) { return a.moFrmTextDateiNamen; }
    static std::uint8_t& mandKanz(cAdminJob& a) { return a.mbytMandKanz; }
    static QString& textDateien(cAdminJob& a) { return a.msTextDateien; }
    static long& belegeAnzahl(cAdminJob& a) { return a.mlBelegeAnzahl; }
    static QString& nivoraTempPfad(cAdminJob& a) { return a.msNivoraTempPfad; }
    static long& nivoraDaten(cAdminJob& a) { return a.mlNivoraDaten; }

    static long checkSkript(cAdminJob& a, const QString& s, E& col) {
        return a.mlCheckImportSkript(s, col);
    }
    static QString mitStern(cAdminJob& a, const QString& s) { return a.mDateinameMitStern(s); }
    static void dateiAuswaehlen(cAdminJob& a, int i) { a.mOptDateiAuswaehlen(i); }
    static void dateienSetzen(cAdminJob& a, const QString& s) { a.mOptDateienSetzen(s); }

    static void initBelegarten(cAdminJob& a) { a.mInitGRD_Belegarten(); }
    static void fillBelege(cAdminJob& a, const QString& s) { a.mFillBelegGrid(s); }
    static QString belegarten(cAdminJob& a) { return a.msGetBelegarten(); }
    static void belegAfterEdit(cAdminJob& a, int row) {
        a.mofrmEigenschaften_evGrdBelegAfterEdit(row);
    }
    static void initNivora(cAdminJob& a, long& key) { a.mInitCBO_NivoraDaten(key); }
    static void nivoraDatenSetzen(cAdminJob& a, long key) { a.mNivoraDaten(key); }
};

namespace option_files_test {

// Plays the user of each modal window with the step given for its name.
struct ScriptedDriver : ModalDriver {
    std::map<QString, std::function<void()>> steps;
    void runModal(const QString& windowName) override {
        auto it = steps.find(windowName);
        if (it != steps.end()) {
            it->second();
        }
    }
};

// Records what the dialogs were asked and gives the prepared answers (nothing = Cancel).
struct DialogUi : RecordingUi {
    struct Frage {
        QString title, filter, start, fileName;
    };
    std::vector<Frage> fragen;
    std::deque<std::optional<QString>> antworten;

    std::optional<QString> antwort() {
        if (antworten.empty()) {
            return std::nullopt;
        }
        auto a = antworten.front();
        antworten.pop_front();
        return a;
    }
    std::optional<QString> FileDialog(const QString& t, const QString& f, const QString& s,
                                      const QString& n) override {
        fragen.push_back({t, f, s, n});
        return antwort();
    }
    std::optional<QString> DirDialog(const QString& t, const QString& s) override {
        fragen.push_back({t, QString(), s, QString()});
        return antwort();
    }
};

class EditorWorld {
  public:
    EditorWorld() {
        services().ui = dialogs;
        services().windows = windows;
        admin = std::make_unique<cAdminJob>();
        editor() = std::make_shared<frmEigenschaften>(
            services().windows->create(frmEigenschaften::declaration()));
        unveraendert();
    }

    app_test::World w;
    ScriptedDriver driver;
    std::shared_ptr<DialogUi> dialogs = std::make_shared<DialogUi>();
    std::shared_ptr<HeadlessWindowFactory> windows =
        std::make_shared<HeadlessWindowFactory>(&driver);
    std::unique_ptr<cAdminJob> admin;

    using A = OptionFilesTestAccess;
    cAdminJob& a() { return *admin; }
    frmEigenschaften& frm() { return *editor(); }
    std::shared_ptr<frmEigenschaften>& editor() { return A::editor(*admin); }
    // Whether the job counts as changed: the editor's "Übernehmen" button is on.
    bool geaendert() {
        return frm().cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen).Enabled();
    }
    void unveraendert() {
        frm().cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen).setEnabled(false);
    }

    HeadlessControl& control(WindowContract& form, const char* name, int index = -1) {
        return *dynamic_cast<HeadlessWindow&>(form.window())
                    .headlessControl(QString::fromUtf8(name), index);
    }
    // "procedure: description" of every error report.
    QStringList reports() const {
        QStringList r;
        for (const auto& e : dialogs->reports) {
            r << e.source.section(QLatin1Char('.'), -1) + QStringLiteral(": ") + e.description;
        }
        return r;
    }
};

}  // namespace option_files_test
