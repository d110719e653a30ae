#include "app/cOIAutoJobVerw.h"

#include "app/Required.h"
#include "app/VariantConvert.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"

namespace {
const QString kKlasse = QStringLiteral("cOIAutoJobVerw");
}

cOIAutoJobVerw::cOIAutoJobVerw() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moTrace.initialize(ex);
        return 0;
    });
}

cOIAutoJobVerw::~cOIAutoJobVerw() {
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        moTrace.terminate();
        return 0;
    });
}

void cOIAutoJobVerw::IOIDokInfo_Anlegen(bool, DokumentDaten* oVParam,
                                        std::shared_ptr<HostObject>& oDokInfo) {
    withErrorExit(QStringLiteral("IOIDokInfo_Anlegen"), kKlasse, 0, [&](ErrorExit&) {
        auto oProperties = std::make_shared<cProperties>();
        oDokInfo = oProperties;
        oProperties->gConstructor();

        const DokumentDaten& daten = required(oVParam);
        auto lesen = [&](const char* name) { return daten.Lesen(QLatin1String(name)); };
        cProperties& p = *oProperties;
        p.plManId = variantToLong(lesen("ManId"));
        p.plMitId = variantToLong(lesen("MitId"));
        p.plManNr = leadingNumber(lesen("ManNr").toString());
        p.psManKurz = lesen("ManKurz").toString();
        p.plZeitId = variantToLong(lesen("ZeitId"));
        p.plAktenJahr = variantToLong(lesen("AktenJahr"));
        p.psPropString = lesen("PropString").toString();
        p.plDocId = variantToLong(lesen("DocId"));
        p.plDocVorlKey = variantToLong(lesen("DocVorlKey"));
        p.plDocVorlId = variantToLong(lesen("DocVorlId"));
        p.plAktenTyp = variantToLong(lesen("AktenTyp"));

        if (auto oBasis = moBasis.lock()) {
            p.plContainer = oBasis->Container();
        }
        return 0;
    });
}

void cOIAutoJobVerw::IOIDokInfo_IstGeladen(HostObject*) {}

bool cOIAutoJobVerw::IOIDokInfo_Pruefen(HostObject*, QString&) {
    return true;
}

void cOIAutoJobVerw::fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis) {
    moBasis = std::move(oBasis);
}
