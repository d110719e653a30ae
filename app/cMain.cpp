#include "app/cMain.h"

#include "app/PendingMessages.h"
#include "app/Required.h"
#include "app/cUIAutoJobVerw.h"
#include "common/ErrorExit.h"

namespace {
const QString kKlasse = QStringLiteral("cMain");
constexpr long kApplikationId = 1160;
constexpr long kCodeNotifyFehler = 402;
}  // namespace

cMain::cMain() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moTrace.initialize(ex);
        moBasis = ex.create(services().newBasisAbruf, QStringLiteral("ZPKyBSAbruf.dll"),
                            QStringLiteral("Set moBasis = New ZPKyBasisAbruf"));
        moBasis->Anmelden(this, QStringLiteral("ZPKyAutoJobVerw.cOIAutoJobVerw"),
                          QStringLiteral("ZPKyAutoJobVerw.cUIAutoJobVerw"), kApplikationId);
        moApplikation = std::dynamic_pointer_cast<cUIAutoJobVerw>(moBasis->GetApplikation());
        if (!moApplikation) {
            throw RaisedError(ErrNumber::TypeMismatch, QStringLiteral("Typen unverträglich"));
        }
        moApplikation->fSetBasis(moBasis);
        moApplikation->fSetMain(this);
        return 0;
    });
}

cMain::~cMain() {
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        moApplikation.reset();
        moBasis.reset();
        moTrace.terminate();
        return 0;
    });
}

void cMain::gNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam) {
    withErrorExit(QStringLiteral("UIInterfaceClass_gNotify"), kKlasse, 0, [&](ErrorExit&) {
        if (!required(moApplikation).fbNotify(oNotify, lCode, lParam, vParam)) {
            mNotifyFehler(oNotify);
        }
        return 0;
    });
}

void cMain::mNotifyFehler(UIInterfaceClass* oNotify) {
    letPendingMessagesRun();
    if (oNotify) {
        long lParam = 0;
        QVariant vParam;
        oNotify->gNotify(oNotify, kCodeNotifyFehler, lParam, vParam);
    }
}
