#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <map>
#include <memory>

// The interfaces of the host application that this component lives in. The host's own
// library is closed; the program's host and the scenario runner implement these.

// Every object the host hands around by reference: the application object, the document
// object, the property record, windows. TypeName is what the classic runtime's TypeName gave.
class HostObject {
  public:
    virtual ~HostObject() = default;
    virtual QString TypeName() const = 0;
};

// Target of notifications. The host implements it, and so does this component's cMain.
class UIInterfaceClass : public virtual HostObject {
  public:
    // vParam is passed by reference: code 503 returns the document's name in it.
    virtual void gNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam) = 0;
    virtual void gInstall() {}
};

// The host's frame: shows progress texts.
class HostFrame {
  public:
    virtual ~HostFrame() = default;
    virtual void ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) = 0;
};

// The host's document data object: the context a document is opened in, read by name
// (ManId, MitId, ManNr, ManKurz, ZeitId, AktenJahr, PropString, DocId, DocVorlKey,
// DocVorlId, AktenTyp).
class DokumentDaten : public virtual HostObject {
  public:
    virtual QVariant Lesen(const QString& name) const = 0;
    QString TypeName() const override { return QStringLiteral("DokumentDaten"); }
};

// The host base object of the host's library. cMain creates one and registers with it; it
// creates the registered application and document objects by their program identifiers.
class ZPKyBasisAbruf {
  public:
    virtual ~ZPKyBasisAbruf() = default;
    virtual void Anmelden(UIInterfaceClass* oMain, const QString& sDokumentProgId,
                          const QString& sApplikationProgId, long lApplikationId) = 0;
    virtual std::shared_ptr<HostObject> GetApplikation() = 0;
    virtual std::shared_ptr<HostObject> GetDokument() = 0;
    virtual HostFrame* GetFrame() = 0;
    // First handling of every notification; bOk false stops all further handling.
    virtual void BasisNotify(UIInterfaceClass* oNotify, long lCode, long& lParam, QVariant& vParam,
                             bool& bOk) = 0;
    virtual void IstBeendet(bool& bBeendet) = 0;
    // The state of a tool of the component's menu bands, for the host's menu. The state
    // travels with the call, so that the host need not reach into the component's windows.
    virtual void MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled,
                            long& lErgebnis) = 0;
    // The container the document lies in.
    virtual long Container() { return 0; }
};

// The classes this component registers with the host, by program identifier
// ("ZPKyAutoJobVerw.cUIAutoJobVerw", "ZPKyAutoJobVerw.cOIAutoJobVerw").
using HostClassFactories = std::map<QString, std::function<std::shared_ptr<HostObject>()>>;
