// The log data viewer. It acts once its windows land.
#include "app/cAdminJob.h"

void cAdminJob::mLogdatenShowCls(long, bool, long) {}
