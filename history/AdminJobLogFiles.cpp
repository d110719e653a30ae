// The log files of a job: the program's own log directories, the list of a directory's log
// files that belong to the job, and opening one of them.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "jobs/JobTypes.h"
#include "ui/Grid.h"
#include "ui/windows/frmBuchLog.h"

namespace {

constexpr int kTextTitel = 1001;
constexpr long kPfadNichtGefunden = 76;

namespace Spalte {
constexpr int kName = 0;
constexpr int kGroesse = 1;
constexpr int kGeaendert = 2;
constexpr int kErstellt = 3;
}  // namespace Spalte

using Knopf = frmBuchLog::Cmd;

void ordnerAnlegen(FileSystemObject& oFSO, const QString& sPfad) {
    if (!oFSO.FolderExists(sPfad) && !oFSO.CreateFolder(sPfad)) {
        throw RaisedError(kPfadNichtGefunden, QStringLiteral("Pfad nicht gefunden"));
    }
}

QString dateiEndung(long lDatenart) {
    switch (lDatenart) {
        case DatenArt::Buchungen:
        case DatenArt::KestoDirekt:
            return QStringLiteral(".Log");
        case DatenArt::Kunden:
        case DatenArt::Lieferanten:
            return QStringLiteral(".XLS");
        case DatenArt::ScanDokumente:
        case DatenArt::Verschlagwortung:
            return QStringLiteral(".txt");
        default:
            return {};
    }
}

}  // namespace

void cAdminJob::mInitLogFileLinks() {
    ErrorExit ex(QStringLiteral("mInitLogFileLinks"), kKlasse);
    try {
        msJobAgentName = required(services().coreTexte).GetText(QVariant(kTextTitel)) +
                         QStringLiteral(" JobAgent");
        QString sPfad;
        if (!msGetLogPath(sPfad)) {
            return;
        }
        // Without a configured log directory the path is the separator alone: no folders are
        // made at the root of the file system.
        if (sPfad.isEmpty() || sPfad == pathSeparator()) {
            return;
        }
        FileSystemObject& oFSO = required(services().fileSystem);
        ordnerAnlegen(oFSO, sPfad);
        msLogPfadAutoImport = sPfad + QStringLiteral("AutoImport") + pathSeparator();
        ordnerAnlegen(oFSO, msLogPfadAutoImport);
        msLogPfadJobAgent = sPfad + QStringLiteral("JobAgent") + pathSeparator();
        ordnerAnlegen(oFSO, msLogPfadJobAgent);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mShowBuLogFiles(long lDatenart) {
    ErrorExit ex(QStringLiteral("mShowBuLogFiles"), kKlasse);
    try {
        mofrmBuLog = std::make_shared<frmBuchLog>(
            required(services().windows).create(frmBuchLog::declaration()));
        // Kept alive until the modal window returns, though "Schließen" lets go of it.
        const std::shared_ptr<frmBuchLog> frm = mofrmBuLog;
        moGridBuLog = &frm->grdData();
        frm->evFrmBuLogCommandButtonClicked =
            mLeben.guard([this](int Index) { mofrmBuLog_evFrmBuLogCommandButtonClicked(Index); });
        mInitGridBuLog();
        mShowBuLogFilesData(lDatenart);
        frm->window().setCaption(msGetAuftragsart(lDatenart) + QStringLiteral(" - Logfiles"));
        required(services().coreTexte).SetFormIcon(frm->window(), kFensterSymbol);
        frm->window().Show(true);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mShowArcLogFiles(long lDatenart) {
    ErrorExit ex(QStringLiteral("mShowArcLogFiles"), kKlasse);
    try {
        const IGrid& grid = required(moGridVerlauf);
        const QString sPfad = grid.TextMatrix(grid.Row(), grid.Col());
        if (sPfad.contains(QStringLiteral(".txt"), Qt::CaseSensitive)) {
            required(services().shell).Open(sPfad);
        } else {
            mShowBuLogFiles(lDatenart);
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mInitGridBuLog() {
    withErrorExit(QStringLiteral("mInitGridBuLog"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridBuLog);
        grid.setCols(4);
        grid.setRows(1);
        grid.setFixedRows(1);
        grid.setFixedCols(0);
        // No alignment marks: the heading is drawn centred, the cells stay left-aligned. The
        // dates are written as sortable text.
        const QStringList sKoepfe{QStringLiteral("Name"), QStringLiteral("Größe"),
                                  QStringLiteral("Geändert"), QStringLiteral("Erstellt")};
        constexpr int kBreiten[] = {4000, 1000, 2000, 2000};
        for (int c = 0; c < 4; ++c) {
            grid.setTextMatrix(0, c, sKoepfe.at(c));
            grid.setColWidth(c, kBreiten[c]);
        }
        mSetzeGridEigenschaften(grid);
        grid.setEditable(false);
        grid.Refresh();
        return 0;
    });
}

void cAdminJob::mShowBuLogFilesData(long lDatenart) {
    ErrorExit ex(QStringLiteral("mShowBuLogFilesData"), kKlasse);
    try {
        frmBuchLog& frm = required(mofrmBuLog);
        IGrid& grid = required(moGridBuLog);
        const QString sEndung = dateiEndung(lDatenart);
        frm.cmdCommandButton(Knopf::Oeffnen).setEnabled(false);
        const IGrid& verlauf = required(moGridVerlauf);
        const QString sPfad = verlauf.TextMatrix(verlauf.Row(), verlauf.Col());
        frm.txtTextBox().setText(sPfad);
        grid.setRows(1);

        FileSystemObject& oFSO = required(services().fileSystem);
        if (oFSO.FolderExists(sPfad)) {
            for (const QString& sName : oFSO.Files(sPfad)) {
                if (sEndung.isEmpty() ||
                    sName.right(4).compare(sEndung, Qt::CaseInsensitive) != 0) {
                    continue;
                }
                const QString sGross = sName.toUpper();
                bool bAnzeigen = true;
                if (lDatenart == DatenArt::ScanDokumente) {
                    bAnzeigen = sGross.contains(QStringLiteral("SCANDOKUMENT"));
                } else if (lDatenart == DatenArt::Verschlagwortung) {
                    bAnzeigen = sGross.contains(QStringLiteral("VERSCHLAGWORTUNG"));
                } else if (lDatenart == DatenArt::Kunden) {
                    bAnzeigen = sGross.contains(QStringLiteral("KUND")) &&
                                mbDateiZumMandant(sName, DatenArt::Kunden, msAuftragMandNr,
                                                  mbytAuftragMandKanz, false);
                } else if (lDatenart == DatenArt::Lieferanten) {
                    bAnzeigen = sGross.contains(QStringLiteral("LIEF")) &&
                                mbDateiZumMandant(sName, DatenArt::Lieferanten, msAuftragMandNr,
                                                  mbytAuftragMandKanz, false);
                }
                if (!bAnzeigen) {
                    continue;
                }
                const QString sDatei = joinPath(sPfad, sName);
                grid.AddItem(QString());
                const int lZeile = grid.Rows() - 1;
                frm.cmdCommandButton(Knopf::Oeffnen).setEnabled(true);
                grid.setTextMatrix(lZeile, Spalte::kName, sName);
                // The size as the file system gives it, in bytes, under the unit "KB".
                grid.setTextMatrix(lZeile, Spalte::kGroesse,
                                   QString::number(oFSO.FileSize(sDatei)) + QStringLiteral(" KB"));
                grid.setTextMatrix(lZeile, Spalte::kGeaendert,
                                   msDatumZeit(oFSO.DateLastModified(sDatei)));
                grid.setTextMatrix(lZeile, Spalte::kErstellt,
                                   msDatumZeit(oFSO.DateCreated(sDatei)));
            }
        }
        const int n = grid.Rows() - 1;
        frm.lblLabel().setCaption(
            QString::number(n) +
            (n == 1 ? QStringLiteral(" Logfile gefunden") : QStringLiteral(" Logfiles gefunden")));
        if (n >= 1) {
            grid.setRow(1);
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mofrmBuLog_evFrmBuLogCommandButtonClicked(int Index) {
    withErrorExit(
        QStringLiteral("mofrmBuLog_evFrmBuLogCommandButtonClicked"), kKlasse, 0, [&](ErrorExit&) {
            switch (Index) {
                case Knopf::Schliessen:
                    if (mofrmBuLog) {
                        mofrmBuLog->window().Unload();
                    }
                    mofrmBuLog.reset();
                    moGridBuLog = nullptr;
                    break;
                case Knopf::Oeffnen: {
                    if (required(moGridBuLog).Row() <= 0) {
                        break;
                    }
                    // The caption tells the kind of log; a direct bookings import's caption
                    // holds that of the bookings import and opens like it.
                    const QString sCaption = required(mofrmBuLog).window().Caption();
                    if (sCaption.contains(msGetAuftragsart(DatenArt::Buchungen))) {
                        mOpenLogFileBu();
                        break;
                    }
                    for (const long lDatenArt :
                         {DatenArt::Kunden, DatenArt::Lieferanten, DatenArt::ScanDokumente,
                          DatenArt::Verschlagwortung}) {
                        if (sCaption.contains(msGetAuftragsart(lDatenArt))) {
                            mOpenLogFile();
                            break;
                        }
                    }
                    break;
                }
                case Knopf::Explorer:
                    required(services().shell).Open(required(mofrmBuLog).txtTextBox().Text());
                    break;
                default:
                    break;
            }
            return 0;
        });
}

void cAdminJob::mOpenLogFile() {
    ErrorExit ex(QStringLiteral("mOpenLogFile"), kKlasse);
    try {
        const IGrid& grid = required(moGridBuLog);
        const QString sDatei = joinPath(required(mofrmBuLog).txtTextBox().Text(),
                                        grid.TextMatrix(grid.Row(), Spalte::kName));
        required(services().shell).Open(sDatei);
    } catch (...) {
        ex.fail();
    }
}
