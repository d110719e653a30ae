#include "app/cProperties.h"

#include "app/PropertyBag.h"
#include "app/Required.h"
#include "common/ErrorExit.h"

namespace {
const QString kKlasse = QStringLiteral("cProperties");
}  // namespace

cProperties::cProperties() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moTrace.initialize(ex);
        return 0;
    });
}

cProperties::~cProperties() {
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        moTrace.terminate();
        return 0;
    });
}

void cProperties::gConstructor() {
    withErrorExit(QStringLiteral("gConstructor"), kKlasse, 0, [this](ErrorExit&) {
        moPropertyBag = std::make_unique<PropertyBag>();
        moPropertyBag->Initialisieren(1, QString());
        mRegisterFields();
        return 0;
    });
}

void cProperties::gDestructor() {
    withErrorExit(QStringLiteral("gDestructor"), kKlasse, 0, [this](ErrorExit&) {
        poDocInfo.reset();
        required(moPropertyBag).Freigeben();
        moPropertyBag.reset();
        return 0;
    });
}

bool cProperties::gbPropertiesAusStringLesen(const QString& sDokInfo) {
    return withErrorExit(QStringLiteral("gbPropertiesAusStringLesen"), kKlasse, false,
                         [&](ErrorExit&) {
                             if (sDokInfo.isEmpty()) {
                                 return false;
                             }
                             QString sText = sDokInfo;
                             required(moPropertyBag).Abbilden(true, sText);
                             return true;
                         });
}

bool cProperties::gbPropertiesInStringSchreiben(QString& sText) {
    return withErrorExit(QStringLiteral("gbPropertiesInStringSchreiben"), kKlasse, false,
                         [&](ErrorExit&) {
                             required(moPropertyBag).Abbilden(false, sText);
                             return true;
                         });
}

bool cProperties::gbPropertiesGeaendert(const QString& sDokInfo) {
    return withErrorExit(QStringLiteral("gbPropertiesGeaendert"), kKlasse, false, [&](ErrorExit&) {
        auto oVergleich = std::make_shared<cProperties>();
        oVergleich->gConstructor();
        oVergleich->poDocInfo = poDocInfo;
        oVergleich->gbPropertiesAusStringLesen(sDokInfo);
        oVergleich->gDestructor();
        return false;
    });
}

void cProperties::mRegisterFields() {
    // The job agent document keeps none of its fields in the property text.
}
