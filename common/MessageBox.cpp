#include "common/MessageBox.h"

#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"

long MessageBoxOwner::mlMsgBox(const QString& sText, long lFlags, const QString& sTitel,
                               const QString& sHelpDatei, long lKontext) {
    ErrorExit ex(QStringLiteral("mlMsgBox"), sKlasse_);
    try {
        const QString titel = sTitel.isEmpty() ? msGetTitel() : sTitel;
        if (!moCoreTools) {
            moCoreTools = ex.create(services().newCoreTools, QStringLiteral("hcore.dll"),
                                    QStringLiteral("Set moCoreTools = New hcore.CoreToolsClass"));
        }
        return moCoreTools->MsgBox(sText, lFlags, titel, sHelpDatei, lKontext);
    } catch (...) {
        ex.fail();
    }
    return 0;
}
