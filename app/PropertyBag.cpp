#include "app/PropertyBag.h"

void PropertyBag::Initialisieren(long lVersion, const QString& sText) {
    lVersion_ = lVersion;
    sText_ = sText;
}

void PropertyBag::Abbilden(bool bLesen, QString& sText) {
    if (bLesen) {
        sText_ = sText;
    } else {
        sText = sText_;
    }
}

void PropertyBag::Freigeben() {
    sText_.clear();
}
