#include "app/Required.h"

#include "common/ErrObject.h"

void raiseObjektErforderlich() {
    throw RaisedError(ErrNumber::ObjectRequired, QStringLiteral("Objekt erforderlich"));
}
