#pragma once

#include <QString>
#include <memory>

#include "common/Host.h"

// The interfaces through which the host drives a registered component. The host reaches them
// on the objects its base object created from the program identifiers.

// The application object.
class IUIApplikation {
  public:
    virtual ~IUIApplikation() = default;
    virtual void IUIApplikation_AktionBearbeiten(const QString& sAktion) = 0;
    // Creates the component's main window and gives it in ofrmMain.
    virtual bool IUIApplikation_Anlegen(HostObject* oDokumentInfo,
                                        std::shared_ptr<HostObject>& ofrmMain) = 0;
    virtual void IUIApplikation_EigenschaftenGeaendert(HostObject* oObjekt) = 0;
    virtual void IUIApplikation_Initialisieren(HostObject* oDokumentInfo,
                                               std::shared_ptr<HostObject> ofrmMain) = 0;
};

// The application object's part in the host's print and input forms.
class IUIFrmAbruf {
  public:
    virtual ~IUIFrmAbruf() = default;
    virtual void IUIFrmAbruf_Anlegen(HostObject* frmAbruf) = 0;
    virtual bool IUIFrmAbruf_AusgabeVorbereiten(HostObject* frmAbruf) = 0;
    virtual void IUIFrmAbruf_Beenden(HostObject* frmAbruf) = 0;
    virtual void IUIFrmAbruf_EingabenUebertragen(HostObject* frmAbruf) = 0;
};

// The document object: turns the host's document data into the component's property record.
class IOIDokInfo {
  public:
    virtual ~IOIDokInfo() = default;
    virtual void IOIDokInfo_Anlegen(bool bDokumentNeu, DokumentDaten* oVParam,
                                    std::shared_ptr<HostObject>& oDokInfo) = 0;
    virtual void IOIDokInfo_IstGeladen(HostObject* oDokInfo) = 0;
    virtual bool IOIDokInfo_Pruefen(HostObject* oDokInfo, QString& sRueckMeldung) = 0;
};
