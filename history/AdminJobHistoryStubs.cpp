// The run history and the links to the log files. They act once their windows land.
#include "app/cAdminJob.h"

void cAdminJob::mInitLogFileLinks() {}

void cAdminJob::mShowVerlauf(long, const QString&) {}
