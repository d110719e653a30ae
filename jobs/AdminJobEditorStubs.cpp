// Pasting a copied job and the buttons of the job editor. They act once the editor lands.
#include "app/cAdminJob.h"

void cAdminJob::mAuftragEinfuegen() {}

void cAdminJob::mPaketeCMDClick(int) {}
