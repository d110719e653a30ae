#include "schedule/ScheduleSentence.h"

#include <array>
#include <utility>

#include "app/cSchedule.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleTime.h"

namespace {

QString kopf(const cSchedule& o) {
    const QString sFaktor = QString::number(o.plFrequencyRecurreFactor);
    switch (o.plFrequencyType) {
        case Haeufigkeit::kTaeglich:
            return QStringLiteral("Jeden ") + QString::number(o.plFrequencyIntervall) +
                   QStringLiteral(". Tag");
        case Haeufigkeit::kWoechentlich:
            return QStringLiteral("Jede ") + sFaktor + QStringLiteral(". Woche ") +
                   wochentageText(o.plFrequencyIntervall);
        case Haeufigkeit::kMonatlich:
            return QStringLiteral("Jeden ") + sFaktor + QStringLiteral(". Monat am ") +
                   QString::number(o.plFrequencyIntervall) + QStringLiteral(". Tag des Monats");
        case Haeufigkeit::kMonatlichRelativ:
            return QStringLiteral("Jeden ") + sFaktor + QStringLiteral(". Monat am ") +
                   vorkommenText(o.plFrequencyRelativeIntervall) +
                   wochentagCodeText(o.plFrequencyIntervall) + QStringLiteral(" des Monats");
        default:
            return {};
    }
}

// The unit keeps its blanks on both sides, so two blanks stand before "zwischen".
QString einheit(std::int32_t lTagesEinheit) {
    switch (lTagesEinheit) {
        case TagesEinheit::kMinuten:
            return QStringLiteral(" Minute(n) ");
        case TagesEinheit::kStunden:
            return QStringLiteral(" Stunde(n) ");
        default:
            return {};
    }
}

QString uhrzeit(const QVariant& vZeit) {
    return zeitAnzeige(zeitAlsText(vZeit));
}

}  // namespace

QString intervallText(const cSchedule& o) {
    QString s = kopf(o) + QStringLiteral(", ");
    if (o.plFrequencySubDay == TagesEinheit::kEinmalig) {
        return s + QStringLiteral("um ") + uhrzeit(o.pvActiveStartTimeOfDay);
    }
    return s + QStringLiteral("alle ") + QString::number(o.plFrequencySubDayIntervall) +
           einheit(o.plFrequencySubDay) + QStringLiteral(" zwischen ") +
           uhrzeit(o.pvActiveStartTimeOfDay) + QStringLiteral(" und ") +
           uhrzeit(o.pvActiveEndTimeOfDay);
}

QString wochentageText(std::int32_t lWochentagBits) {
    static const std::array<std::pair<std::int32_t, const char*>, 7> kTage{{
        {WochentagBit::kSonntag, "Sonntag, "},
        {WochentagBit::kMontag, "Montag, "},
        {WochentagBit::kDienstag, "Dienstag, "},
        {WochentagBit::kMittwoch, "Mittwoch, "},
        {WochentagBit::kDonnerstag, "Donnerstag, "},
        {WochentagBit::kFreitag, "Freitag, "},
        {WochentagBit::kSamstag, "Samstag, "},
    }};
    QString s;
    for (const auto& [lBit, sTag] : kTage) {
        if (lWochentagBits & lBit) {
            s += QLatin1String(sTag);
        }
    }
    if (s.isEmpty()) {
        return s;
    }
    s.chop(2);
    return QStringLiteral("am ") + s;
}

QString vorkommenText(std::int32_t lVorkommen) {
    switch (lVorkommen) {
        case Vorkommen::kErster:
            return QStringLiteral("1. ");
        case Vorkommen::kZweiter:
            return QStringLiteral("2. ");
        case Vorkommen::kDritter:
            return QStringLiteral("3. ");
        case Vorkommen::kVierter:
            return QStringLiteral("4. ");
        case Vorkommen::kLetzter:
            return QStringLiteral("letzten ");
        default:
            return {};
    }
}

QString wochentagCodeText(std::int32_t lWochentagCode) {
    static const std::array<const char*, 10> kNamen{
        "Sonntag", "Montag",  "Dienstag", "Mittwoch",  "Donnerstag",
        "Freitag", "Samstag", "Tag",      "Wochentag", "Wochenendtag",
    };
    if (lWochentagCode < WochentagCode::kSonntag || lWochentagCode > WochentagCode::kWochenendtag) {
        return {};
    }
    return QLatin1String(kNamen[static_cast<std::size_t>(lWochentagCode - 1)]);
}
