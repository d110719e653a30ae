// The link cells of the run history: a click marks a directory cell, leaving it unmarks it,
// and a double click on a marked cell opens the directory or the job's log file list.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "jobs/JobTypes.h"
#include "ui/Grid.h"

namespace {

// Blue as the grid stores colours, in blue-green-red order.
constexpr long kBlau = 0xFF0000;
constexpr long kSchwarz = 0;

constexpr int kErsteLinkSpalte = 3;
constexpr int kLetzteLinkSpalte = 5;
constexpr int kLogfileSpalte = 5;
constexpr int kArchivSpalte = 3;

bool istLink(const IGrid& grid) {
    return grid.CellUnderline(grid.Row(), grid.Col()) &&
           grid.CellForeColor(grid.Row(), grid.Col()) == kBlau;
}

}  // namespace

// The grid's handlers report their own failures like every procedure, so that nothing falls
// out into the window's event loop.
void cAdminJob::moGridVerlauf_Click() {
    withErrorExit(QStringLiteral("moGridVerlauf_Click"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridVerlauf);
        const int lCol = grid.Col();
        if (grid.Row() > 0 && lCol >= kErsteLinkSpalte && lCol <= kLetzteLinkSpalte) {
            grid.setCellUnderline(grid.Row(), lCol, true);
            grid.setCellForeColor(grid.Row(), lCol, kBlau);
        }
        return 0;
    });
}

void cAdminJob::moGridVerlauf_LeaveCell() {
    withErrorExit(QStringLiteral("moGridVerlauf_LeaveCell"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridVerlauf);
        if (grid.Row() >= 0 && grid.Col() >= 0) {
            grid.setCellUnderline(grid.Row(), grid.Col(), false);
            grid.setCellForeColor(grid.Row(), grid.Col(), kSchwarz);
        }
        return 0;
    });
}

void cAdminJob::moGridVerlauf_DblClick() {
    withErrorExit(QStringLiteral("moGridVerlauf_DblClick"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridVerlauf);
        if (grid.Row() < 1 || grid.Col() < 1 || !istLink(grid)) {
            return 0;
        }
        bool bHandled = false;
        if (grid.Col() == kLogfileSpalte) {
            bHandled = true;
            const QString sArt = msAuftragsartAktuell();
            for (const long lDatenArt : {DatenArt::Buchungen, DatenArt::Kunden,
                                         DatenArt::Lieferanten, DatenArt::KestoDirekt}) {
                if (sArt == msGetAuftragsart(lDatenArt)) {
                    mShowBuLogFiles(lDatenArt);
                    break;
                }
            }
        }
        if (grid.Col() == kArchivSpalte) {
            const QString sArt = msAuftragsartAktuell();
            for (const long lDatenArt : {DatenArt::ScanDokumente, DatenArt::Verschlagwortung}) {
                if (sArt == msGetAuftragsart(lDatenArt)) {
                    bHandled = true;
                    mShowArcLogFiles(lDatenArt);
                    break;
                }
            }
        }
        if (!bHandled) {
            required(services().shell).Open(grid.TextMatrix(grid.Row(), grid.Col()));
        }
        return 0;
    });
}
