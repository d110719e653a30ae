#pragma once

#include <memory>

#include "app/ClassTrace.h"
#include "app/HostInterfaces.h"

// The document object: a job agent document has no content of its own; its record carries
// only the context of the work.
class cOIAutoJobVerw : public virtual HostObject, public IOIDokInfo {
  public:
    // Class_Initialize and Class_Terminate.
    cOIAutoJobVerw();
    ~cOIAutoJobVerw() override;
    cOIAutoJobVerw(const cOIAutoJobVerw&) = delete;
    cOIAutoJobVerw& operator=(const cOIAutoJobVerw&) = delete;

    QString TypeName() const override { return QStringLiteral("cOIAutoJobVerw"); }

    // oDokInfo becomes a new cProperties filled from the document data.
    void IOIDokInfo_Anlegen(bool bDokumentNeu, DokumentDaten* oVParam,
                            std::shared_ptr<HostObject>& oDokInfo) override;
    void IOIDokInfo_IstGeladen(HostObject* oDokInfo) override;
    // A document is always in order.
    bool IOIDokInfo_Pruefen(HostObject* oDokInfo, QString& sRueckMeldung) override;

    // Lets the record carry the container number; the host may call it.
    void fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis);

  private:
    std::weak_ptr<ZPKyBasisAbruf> moBasis;
    ClassTrace moTrace{QStringLiteral("cOIAutoJobVerw")};
};
