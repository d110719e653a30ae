// The buttons of the job editor. They act once the editor lands.
#include "app/cAdminJob.h"

void cAdminJob::mPaketeCMDClick(int) {}
