#include "jobs/JobRecord.h"

#include "jobs/JobTypes.h"

bool jobHatArchivAnmeldung(long lDatenArt) {
    return lDatenArt == DatenArt::ScanDokumente || lDatenArt == DatenArt::Verschlagwortung;
}
