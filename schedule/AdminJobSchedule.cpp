// The schedule record of the controller: filled from the table, with the defaults of a new
// schedule, or cleared of its recurrence before a dialog writes it anew.
#include <limits>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleDefaults.h"
#include "schedule/ScheduleTime.h"
#include "ui/Controls.h"

namespace {

std::int32_t alsLong32(long lWert) {
    if (lWert < std::numeric_limits<std::int32_t>::min() ||
        lWert > std::numeric_limits<std::int32_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::int32_t>(lWert);
}

std::uint8_t alsByte(long lWert) {
    if (lWert < 0 || lWert > std::numeric_limits<std::uint8_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::uint8_t>(lWert);
}

}  // namespace

QString cAdminJob::msGetTimeString(const QString& sZeit) {
    return withErrorExit(QStringLiteral("msGetTimeString"), kKlasse, QString(),
                         [&](ErrorExit&) { return zeitAnzeige(sZeit); });
}

void cAdminJob::mSetzeScheduleObjektAusDB(std::int32_t lScheduleId) {
    ErrorExit ex(QStringLiteral("mSetzeScheduleObjektAusDB"), kKlasse);
    try {
        const QString sSql = QStringLiteral(" Select * from ") +
                             QStringLiteral("tAutoJobSchedule") + QStringLiteral(" where ") +
                             QStringLiteral("idAutoJobSchedule") + QStringLiteral(" = ") +
                             QString::number(lScheduleId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(sSql, 2) >= 1) {
            // Read into a copy, so that a failing field leaves the record as it was.
            cSchedule o = required(moSchedule);
            o.plFrequencyType = alsLong32(oTL->ReadLong(QStringLiteral("FreqencyType")));
            o.plFrequencySubDay = alsLong32(oTL->ReadLong(QStringLiteral("FrequencySubDay")));
            o.plFrequencyIntervall = alsLong32(oTL->ReadLong(QStringLiteral("FrequencyInterval")));
            o.plFrequencyRecurreFactor =
                alsLong32(oTL->ReadLong(QStringLiteral("FrequencyRecurrenceFactor")));
            o.plFrequencyRelativeIntervall =
                alsLong32(oTL->ReadLong(QStringLiteral("FrequencyRelativeInterval")));
            o.pvActiveStartTimeOfDay =
                alsLong32(oTL->ReadLong(QStringLiteral("ActiveStartTimeOfDay")));
            o.plFrequencySubDayIntervall =
                alsLong32(oTL->ReadLong(QStringLiteral("FrequencySubDayinterval")));
            o.pdtActiveStartDate = oTL->ReadDate(QStringLiteral("ActiveStartDate"));
            o.pvActiveEndTimeOfDay = alsLong32(oTL->ReadLong(QStringLiteral("ActiveEndTimeOfDay")));
            o.pdtActiveEndDate = oTL->ReadDate(QStringLiteral("ActiveEndDate"));
            o.pbyAktiviert = alsByte(oTL->ReadLong(QStringLiteral("Aktiviert")));
            *moSchedule = std::move(o);
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mSetDefaultIntervallZeitplan(long lZeilenGrdZeitplan) {
    withErrorExit(QStringLiteral("mSetDefaultIntervallZeitplan"), kKlasse, 0, [&](ErrorExit&) {
        setzeStandardZeitplan(required(moSchedule), lZeilenGrdZeitplan, clockNow());
        return 0;
    });
}

void cAdminJob::mInitZeitplan() {
    withErrorExit(QStringLiteral("mInitZeitplan"), kKlasse, 0, [&](ErrorExit&) {
        if (moSchedule) {
            setzeWiederholungZurueck(*moSchedule);
        }
        return 0;
    });
}

void cAdminJob::mShowZeitplanIntervall(ILabel& lblLabel0, long lZeilenGrdZeitplan) {
    withErrorExit(QStringLiteral("mShowZeitplanIntervall"), kKlasse, 0, [&](ErrorExit&) {
        lblLabel0.setCaption(kStandardIntervallText);
        mSetDefaultIntervallZeitplan(lZeilenGrdZeitplan);
        return 0;
    });
}
