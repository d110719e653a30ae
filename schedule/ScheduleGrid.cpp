// The grid of a job's schedules on the job editor's second page: set up, filled from the table
// and rebuilt after a deletion.
#include <limits>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleCodes.h"
#include "ui/Grid.h"

namespace {

namespace Spalte {
constexpr int kName = 0;
constexpr int kAktiviert = 1;
constexpr int kBeschreibung = 2;
constexpr int kScheduleId = 3;
}  // namespace Spalte

// The heading marks centre every heading.
const QString kUeberschriften = QStringLiteral("^Name|^Aktiviert|^Beschreibung|^ScheduleID");
constexpr int kBreiten[] = {2000, 1000, 2500, 2500};

bool hatSatzbeschreibung(long lTyp) {
    return lTyp == Haeufigkeit::kTaeglich || lTyp == Haeufigkeit::kWoechentlich ||
           lTyp == Haeufigkeit::kMonatlich || lTyp == Haeufigkeit::kMonatlichRelativ;
}

std::int32_t alsLong32(long lWert) {
    if (lWert < std::numeric_limits<std::int32_t>::min() ||
        lWert > std::numeric_limits<std::int32_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::int32_t>(lWert);
}

}  // namespace

void cAdminJob::mSetzeGridEigenschaften(IGrid&) {
    // Borders, colours and the highlight of the current row are drawn alike for every grid
    // by the window kits; nothing is left to set per grid.
    withErrorExit(QStringLiteral("mSetzeGridEigenschaften"), kKlasse, 0,
                  [](ErrorExit&) { return 0; });
}

void cAdminJob::mInitGridZeitplan() {
    withErrorExit(QStringLiteral("mInitGridZeitplan"), kKlasse, 0, [&](ErrorExit&) {
        IGrid& grid = required(moGridZeitplan);
        grid.setCols(4);
        grid.setRows(1);
        grid.setFixedCols(0);
        grid.setFixedRows(1);
        grid.setFormatString(kUeberschriften);
        for (int c = 0; c < 4; ++c) {
            grid.setColWidth(c, kBreiten[c]);
        }
        grid.setColHidden(Spalte::kScheduleId, true);
        mSetzeGridEigenschaften(grid);
        grid.Refresh();
        return 0;
    });
}

void cAdminJob::mFuelleGridZeitplan() {
    ErrorExit ex(QStringLiteral("mFuelleGridZeitplan"), kKlasse);
    bool bEigenerSchedule = false;
    try {
        if (mlJobId < 0) {
            return;
        }
        IGrid& grid = required(moGridZeitplan);
        const QString sSql = QStringLiteral(" select * from ") +
                             QStringLiteral("tAutoJobSchedule") + QStringLiteral(" where ") +
                             QStringLiteral("idAutoJob") + QStringLiteral(" = ") +
                             QString::number(mlJobId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const long lAnzahl = oTL->OpenQuery(sSql, 2);
        // Kept from row to row on purpose: a row of an unknown type repeats the text before it.
        QString sBeschreibung;
        for (long i = 0; i < lAnzahl; ++i) {
            const long lId = oTL->ReadLong(QStringLiteral("idAutoJobSchedule"));
            const QString sName = oTL->ReadText(QStringLiteral("Name"));
            const long lAktiviert = oTL->ReadLong(QStringLiteral("Aktiviert"));
            const long lTyp = oTL->ReadLong(QStringLiteral("FreqencyType"));
            const QDateTime dtStart = oTL->ReadDate(QStringLiteral("ActiveStartDate"));
            const QString sStartZeit = oTL->ReadText(QStringLiteral("ActiveStartTimeOfDay"));

            grid.AddItem(QString());
            const int lZeile = grid.Rows() - 1;
            grid.setTextMatrix(lZeile, Spalte::kName, sName);
            grid.setTextMatrix(lZeile, Spalte::kAktiviert,
                               lAktiviert == 1 ? QStringLiteral("Ja") : QStringLiteral("Nein"));
            grid.setTextMatrix(lZeile, Spalte::kScheduleId, QString::number(lId));
            if (lTyp == Haeufigkeit::kEinmal) {
                sBeschreibung = QStringLiteral("Starten am ") +
                                dtStart.toString(QStringLiteral("dd.MM.yyyy")) +
                                QStringLiteral(" ") + msGetTimeString(sStartZeit);
            } else if (hatSatzbeschreibung(lTyp)) {
                moSchedule = std::make_unique<cSchedule>();
                bEigenerSchedule = true;
                mSetzeScheduleObjektAusDB(alsLong32(lId));
                sBeschreibung = msGetIntervallString();
                moSchedule.reset();
                bEigenerSchedule = false;
            }
            grid.setTextMatrix(lZeile, Spalte::kBeschreibung, sBeschreibung);
            oTL->Move(CRecordset::MoveNext);
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        if (bEigenerSchedule) {
            moSchedule.reset();
        }
        ex.fail();
    }
}

void cAdminJob::mLoescheZeitplan() {
    withErrorExit(QStringLiteral("mLoescheZeitplan"), kKlasse, 0, [&](ErrorExit&) {
        IGrid& grid = required(moGridZeitplan);
        const int lZeile = grid.Row();
        if (lZeile <= 0) {
            return 0;  // the heading, or no schedule listed
        }
        // A cell without a number gives 0, and nothing is asked or deleted.
        mlZeitplanId = grid.TextMatrix(lZeile, Spalte::kScheduleId).toLong();
        mZeitplanLoeschen();
        mInitGridZeitplan();
        mFuelleGridZeitplan();
        grid.setRow(grid.Rows() - 1);
        return 0;
    });
}

void cAdminJob::moGridZeitplan_KeyDown(int iKeyCode) {
    withErrorExit(QStringLiteral("moGridZeitplan_KeyDown"), kKlasse, 0, [&](ErrorExit&) {
        if (iKeyCode == KeyCode::Delete) {
            mLoescheZeitplan();
        }
        return 0;
    });
}
