// Opening, stepping and closing the properties window. They act once the properties window
// lands; until then the list's commands that lead there do nothing.
#include "app/cAdminJob.h"

void cAdminJob::mShowFRMPakete(long, const QString&) {}

void cAdminJob::mPaketNav(const QString&) {}

void cAdminJob::mEigenschaftenSchliessen(bool) {}
