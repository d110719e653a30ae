// The schedule record of the controller: filled from the table, with the defaults of a new
// schedule, or cleared of its recurrence before a dialog writes it anew.
#include <limits>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleDefaults.h"
#include "schedule/ScheduleRow.h"
#include "schedule/ScheduleTime.h"
#include "ui/Controls.h"

namespace {}  // namespace

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
            leseZeitplanWiederholung(*oTL, o);
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
