#include "app/Registration.h"

#include "app/cOIAutoJobVerw.h"
#include "app/cUIAutoJobVerw.h"

void registerHostClasses(Services& s) {
    s.hostClasses[QStringLiteral("ZPKyAutoJobVerw.cOIAutoJobVerw")] = [] {
        return std::make_shared<cOIAutoJobVerw>();
    };
    s.hostClasses[QStringLiteral("ZPKyAutoJobVerw.cUIAutoJobVerw")] = [] {
        return std::make_shared<cUIAutoJobVerw>();
    };
}
