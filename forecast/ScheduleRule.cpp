#include "forecast/ScheduleRule.h"

namespace {

bool isTime(std::int32_t hhmmss) {
    return hhmmss >= 0 && hhmmss / 10000 < 24 && hhmmss / 100 % 100 < 60 && hhmmss % 100 < 60;
}

QString fault(const char* text, std::int32_t value) {
    return QString::fromUtf8(text).arg(value);
}

}  // namespace

QString ruleFault(const ScheduleRule& r) {
    const std::int32_t typ = r.lFreqencyType;
    if (typ != 1 && typ != 4 && typ != 8 && typ != 16 && typ != 32) {
        return fault("Unbekannte Häufigkeit (FreqencyType %1).", typ);
    }
    if (!r.dActiveStartDate.isValid()) {
        return QStringLiteral("Kein Startdatum (ActiveStartDate).");
    }
    if (r.dActiveEndDate.isValid() && r.dActiveEndDate < r.dActiveStartDate) {
        return QStringLiteral("Das Enddatum liegt vor dem Startdatum.");
    }
    if (!isTime(r.lActiveStartTimeOfDay)) {
        return fault("Ungültige Startzeit (ActiveStartTimeOfDay %1).", r.lActiveStartTimeOfDay);
    }
    if (typ == 1) {
        return {};
    }
    if (typ == 4 && r.lFrequencyInterval <= 0) {
        return fault("Ungültiges Tagesintervall (FrequencyInterval %1).", r.lFrequencyInterval);
    }
    if (typ == 8 && (r.lFrequencyInterval <= 0 || r.lFrequencyInterval > 127)) {
        return fault("Ungültige Wochentage (FrequencyInterval %1).", r.lFrequencyInterval);
    }
    if (typ == 16 && (r.lFrequencyInterval < 1 || r.lFrequencyInterval > 31)) {
        return fault("Ungültiger Tag des Monats (FrequencyInterval %1).", r.lFrequencyInterval);
    }
    if (typ == 32 && (r.lFrequencyInterval < 1 || r.lFrequencyInterval > 10)) {
        return fault("Ungültiger Wochentag (FrequencyInterval %1).", r.lFrequencyInterval);
    }
    if (typ == 32) {
        const std::int32_t rel = r.lFrequencyRelativeInterval;
        if (rel != 1 && rel != 2 && rel != 4 && rel != 8 && rel != 16) {
            return fault("Ungültiges Vorkommen im Monat (FrequencyRelativeInterval %1).", rel);
        }
    }
    if (typ != 4 && r.lFrequencyRecurrenceFactor <= 0) {
        return fault("Ungültiger Wiederholungsfaktor (FrequencyRecurrenceFactor %1).",
                     r.lFrequencyRecurrenceFactor);
    }
    const std::int32_t unit = r.lFrequencySubDay;
    if (unit != 1 && unit != 4 && unit != 8) {
        return fault("Unbekannte Einheit der Wiederholung am Tag (FrequencySubDay %1).", unit);
    }
    if (unit != 1) {
        if (r.lFrequencySubDayinterval <= 0) {
            return fault("Ungültiges Intervall am Tag (FrequencySubDayinterval %1).",
                         r.lFrequencySubDayinterval);
        }
        if (!isTime(r.lActiveEndTimeOfDay)) {
            return fault("Ungültige Endzeit (ActiveEndTimeOfDay %1).", r.lActiveEndTimeOfDay);
        }
    }
    return {};
}
