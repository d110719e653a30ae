// The viewer's own life: creation and end with their traces, the friend operations that
// start and end it, and its message box.
#include "logdata/cLogDaten.h"

#include <utility>

#include "common/ErrorExit.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDel.h"
#include "ui/windows/frmLogDatenDetails.h"

namespace {

template <class Fenster>
void fensterEntladen(std::shared_ptr<Fenster>& fenster) {
    if (auto oFenster = std::exchange(fenster, nullptr)) {
        oFenster->window().Unload();
    }
}

}  // namespace

cLogDaten::cLogDaten() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moLog.initialize(ex);
        return 0;
    });
}

cLogDaten::~cLogDaten() {
    // Windows that unload now must not call back into an object that is ending.
    mLeben.end();
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        if (!mbDestructor) {
            fDestructor();
        }
        fensterEntladen(moFrmLogDatenDetails);
        fensterEntladen(moFrmLogDatenDel);
        fensterEntladen(moFrmLogDaten);
        moLog.terminate();
        return 0;
    });
}

bool cLogDaten::fbConstructor() {
    return withErrorExit(QStringLiteral("fbConstructor"), kKlasse, false,
                         [](ErrorExit&) { return true; });
}

void cLogDaten::fDestructor() {
    withErrorExit(QStringLiteral("fDestructor"), kKlasse, 0, [this](ErrorExit&) {
        moMeldungen.reset();
        mbDestructor = true;
        return 0;
    });
}

long cLogDaten::mlMsgBox(const QString& sText, long lFlags, const QString& sTitel,
                         const QString& sHelpDatei, long lKontext) {
    if (!moMeldungen) {
        moMeldungen = std::make_unique<MessageBoxOwner>(kKlasse);
    }
    return moMeldungen->mlMsgBox(sText, lFlags, sTitel, sHelpDatei, lKontext);
}
