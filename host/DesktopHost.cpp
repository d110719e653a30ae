#include "host/DesktopHost.h"

#include "common/Services.h"

void DesktopFrame::ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) {
    if (onProgress) {
        onProgress(sHinweis, sEndeHinweis);
    }
}

void DesktopNotifyTarget::gNotify(UIInterfaceClass*, long lCode, long&, QVariant& vParam) {
    if (lCode == 503) {
        vParam = docName_;
    } else if (lCode == 402 && onFailedNotification) {
        onFailedNotification();
    }
}

void DesktopBasis::Anmelden(UIInterfaceClass*, const QString& sDokumentProgId,
                            const QString& sApplikationProgId, long) {
    const HostClassFactories& classes = services().hostClasses;
    if (auto it = classes.find(sApplikationProgId); it != classes.end()) {
        applikation_ = it->second();
    }
    if (auto it = classes.find(sDokumentProgId); it != classes.end()) {
        dokument_ = it->second();
    }
}

void DesktopBasis::MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled,
                              long& lErgebnis) {
    lErgebnis = 0;
    if (onMenuStatus) {
        onMenuStatus(sBand, sTool, bEnabled);
    }
}

QVariant DesktopDokumentDaten::Lesen(const QString& name) const {
    if (name == QLatin1String("ManId")) {
        return QVariant::fromValue<qlonglong>(config_.manId);
    }
    if (name == QLatin1String("MitId")) {
        return QVariant::fromValue<qlonglong>(config_.mitId);
    }
    if (name == QLatin1String("ManNr")) {
        return QVariant::fromValue<qlonglong>(config_.manNr);
    }
    if (name == QLatin1String("AktenTyp")) {
        return QVariant::fromValue<qlonglong>(config_.aktenTyp);
    }
    if (name == QLatin1String("ManKurz") || name == QLatin1String("PropString")) {
        return QString();
    }
    return QVariant::fromValue<qlonglong>(0);
}
