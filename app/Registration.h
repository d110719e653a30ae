#pragma once

#include "common/Services.h"

// The classes the component registers with the host, under their program identifiers
// "ZPKyAutoJobVerw.cOIAutoJobVerw" (document object) and "ZPKyAutoJobVerw.cUIAutoJobVerw"
// (application object). The host base object creates them from these.
void registerHostClasses(Services& s);
