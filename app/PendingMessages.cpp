#include "app/PendingMessages.h"

#include <QCoreApplication>

void letPendingMessagesRun() {
    if (QCoreApplication::instance()) {
        QCoreApplication::processEvents();
    }
}
