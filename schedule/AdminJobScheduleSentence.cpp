// The controller's description of its schedule record as one German sentence.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleSentence.h"

QString cAdminJob::msGetIntervallString() {
    return withErrorExit(QStringLiteral("msGetIntervallString"), kKlasse, QString(),
                         [&](ErrorExit&) { return intervallText(required(moSchedule)); });
}

QString cAdminJob::msGetWochentageString(std::int32_t lWochentage) {
    return withErrorExit(QStringLiteral("msGetWochentageString"), kKlasse, QString(),
                         [&](ErrorExit&) { return wochentageText(lWochentage); });
}

QString cAdminJob::msStelleWochentag(std::int32_t lRelativ) {
    return withErrorExit(QStringLiteral("msStelleWochentag"), kKlasse, QString(),
                         [&](ErrorExit&) { return vorkommenText(lRelativ); });
}

QString cAdminJob::msWochentagRelativ(std::int32_t lWochentag) {
    return withErrorExit(QStringLiteral("msWochentagRelativ"), kKlasse, QString(),
                         [&](ErrorExit&) { return wochentagCodeText(lWochentag); });
}
