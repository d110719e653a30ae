// The run history of one job: the window, its grid and counter line, and the deletion of all
// runs of the job.
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "common/ModuleHelpers.h"
#include "history/HistoryTexts.h"
#include "jobs/JobTypes.h"
#include "schedule/ScheduleRow.h"
#include "ui/Grid.h"
#include "ui/windows/frmVerlauf.h"

namespace {

constexpr int kTextKesto = 1236;

namespace Spalte {
constexpr int kId = 0;
constexpr int kAusfuehrzeit = 1;
constexpr int kStatus = 2;
constexpr int kImportdaten = 3;
constexpr int kBackup = 4;
constexpr int kLogfiles = 5;
// An archive job shows its log directory in the fourth column.
constexpr int kArchivLogfiles = 3;
}  // namespace Spalte

using Knopf = frmVerlauf::Cmd;

QString kestoName() {
    return required(services().coreTexte).GetText(QVariant(kTextKesto));
}

}  // namespace

void cAdminJob::mShowVerlauf(long lJobId, const QString& sJobName) {
    ErrorExit ex(QStringLiteral("mShowVerlauf"), kKlasse);
    try {
        mlJobIdListe = lJobId;
        mofrmVerlauf = std::make_shared<frmVerlauf>(
            required(services().windows).create(frmVerlauf::declaration()));
        // Kept alive until the modal window returns, though "Schließen" lets go of it.
        const std::shared_ptr<frmVerlauf> frm = mofrmVerlauf;
        moGridVerlauf = &frm->grdData();
        frm->evFrmVerlaufCMDButtonClicked =
            mLeben.guard([this](int Index) { mofrmVerlauf_evFrmVerlaufCMDButtonClicked(Index); });
        // Declared for a directory button that no control raises; nothing is done on it.
        frm->evFrmVerlaufCMDButtonVerzeichnisOeffnenClicked = [] {};
        frm->evGrdDataClick = mLeben.guard([this] { moGridVerlauf_Click(); });
        frm->evGrdDataDblClick = mLeben.guard([this] { moGridVerlauf_DblClick(); });
        frm->evGrdDataLeaveCell = mLeben.guard([this] { moGridVerlauf_LeaveCell(); });

        moVerlaufFilter = std::make_unique<cVerlaufFilter>();
        moVerlaufFilter->byErfolgreich = Erfolg::kAlle;
        moVerlaufFilter->lZeitWert = 2;
        moVerlaufFilter->lZeitEinheit = 2;

        mInitGridVerlauf();
        mFuelleGridVerlauf();
        msGetJobName(lJobId);
        required(services().coreTexte).SetFormIcon(frm->window(), kFensterSymbol);
        frm->lblLabel(frmVerlauf::Lbl::Auftragsname)
            .setCaption(QStringLiteral("Auftragsname: ") + sJobName);
        frm->window().Show(true);
    } catch (...) {
        ex.fail();
    }
}

bool cAdminJob::mbVerlaufImportdaten() {
    return withErrorExit(QStringLiteral("mbVerlaufImportdaten"), kKlasse, false,
                         [this](ErrorExit&) { return mbKestoDirekt() ? false : !mbNivora(); });
}

void cAdminJob::mInitGridVerlauf() {
    withErrorExit(QStringLiteral("mInitGridVerlauf"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridVerlauf);
        const bool bArchiv = mbArchivJob();
        grid.setCols(bArchiv ? 4 : 6);
        grid.setRows(1);
        grid.setFixedRows(1);
        grid.setFixedCols(0);
        // No alignment marks: the heading is drawn centred, the cells stay left-aligned.
        grid.setTextMatrix(0, Spalte::kId, QStringLiteral("ID"));
        grid.setColWidth(Spalte::kId, 1800);
        // The run's time is written as sortable text "yyyy-mm-dd hh:mm:ss".
        grid.setTextMatrix(0, Spalte::kAusfuehrzeit, QStringLiteral("Ausführzeit"));
        grid.setColWidth(Spalte::kAusfuehrzeit, 2000);
        grid.setTextMatrix(0, Spalte::kStatus, QStringLiteral("Status"));
        grid.setColWidth(Spalte::kStatus, 1000);
        if (bArchiv) {
            grid.setTextMatrix(0, Spalte::kArchivLogfiles, QStringLiteral("Logfiles"));
            grid.setColWidth(Spalte::kArchivLogfiles, 2500);
        } else {
            const bool bImportdaten = mbVerlaufImportdaten();
            if (bImportdaten) {
                grid.setTextMatrix(0, Spalte::kImportdaten, QStringLiteral("Importdaten"));
                grid.setColWidth(Spalte::kImportdaten, 2500);
            } else {
                grid.setColHidden(Spalte::kImportdaten, true);
            }
            grid.setTextMatrix(0, Spalte::kBackup, QStringLiteral("Backup"));
            grid.setColWidth(Spalte::kBackup, bImportdaten ? 2500 : 4000);
            grid.setTextMatrix(0, Spalte::kLogfiles, QStringLiteral("Logfiles"));
            grid.setColWidth(Spalte::kLogfiles, 2500);
        }
        mSetzeGridEigenschaften(grid);
        grid.setEditable(false);
        grid.setColHidden(Spalte::kId, true);
        grid.Refresh();
        return 0;
    });
}

void cAdminJob::mFuelleGridVerlauf() {
    ErrorExit ex(QStringLiteral("mFuelleGridVerlauf"), kKlasse);
    try {
        const QString sUnit = msGetZeiteinheit(1);
        IGrid& grid = required(moGridVerlauf);
        const cVerlaufFilter& filter = required(moVerlaufFilter);
        grid.setRows(1);

        QString sSql = QStringLiteral(" SELECT     ") + QStringLiteral("tAutoJobVerlauf") +
                       QStringLiteral(".*, ") + QStringLiteral("tAutoJobSchedule") +
                       QStringLiteral(".") + QStringLiteral("idAutoJob") + QStringLiteral(" AS ") +
                       QStringLiteral("idAutoJob");
        sSql += QStringLiteral(" FROM        ") + QStringLiteral("tAutoJobSchedule") +
                QStringLiteral(" INNER JOIN ") + QStringLiteral("tAutoJobVerlauf") +
                QStringLiteral(" ON ") + QStringLiteral("tAutoJobSchedule") + QStringLiteral(".") +
                QStringLiteral("idAutoJobSchedule") + QStringLiteral(" = ") +
                QStringLiteral("tAutoJobVerlauf") + QStringLiteral(".") +
                QStringLiteral("idAutoJobSchedule");
        sSql += QStringLiteral(" WHERE ") + QStringLiteral("tAutoJobSchedule") +
                QStringLiteral(".") + QStringLiteral("idAutoJob") + QStringLiteral("=") +
                QString::number(mlJobIdListe);
        sSql += QStringLiteral(" AND datediff(") + sUnit + QStringLiteral(", ") +
                QStringLiteral("tAutoJobVerlauf") + QStringLiteral(".") +
                QStringLiteral("LetzteAusfuehrung") + QStringLiteral(", getdate()) <= ") +
                QString::number(filter.lZeitWert);
        if (filter.byErfolgreich != Erfolg::kAlle) {
            sSql += QStringLiteral(" AND ") + QStringLiteral("tAutoJobVerlauf") +
                    QStringLiteral(".") + QStringLiteral("Erfolgreich") + QStringLiteral(" = ") +
                    QString::number(filter.byErfolgreich);
        }

        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const long lAnzahl = oTL->OpenQuery(sSql, 2);
        if (lAnzahl > 0) {
            const bool bArchiv = mbArchivJob();
            const bool bKestoDirekt = !bArchiv && mbKestoDirekt();
            const bool bBuchungen =
                !maAuftragsarten.empty() &&
                maAuftragsarten.front().sArt.toUpper() == QStringLiteral("IMPORT BUCHUNGEN");
            bool bWeiter = true;
            while (bWeiter) {
                const long lVerlaufId = oTL->ReadLong(QStringLiteral("idAutoJobVerlauf"));
                const long lJobId = oTL->ReadLong(QStringLiteral("idAutoJob"));
                const QDateTime dtAusfuehrung = oTL->ReadDate(QStringLiteral("LetzteAusfuehrung"));
                const QString sStatus = msGetVerlaufErfolgreichString(
                    alsByte(oTL->ReadLong(QStringLiteral("Erfolgreich"))));
                const QString sMta = oTL->ReadText(QStringLiteral("MTAPath"));
                const QString sBackup = oTL->ReadText(QStringLiteral("BackupPath"));
                const QString sLogPfad = oTL->ReadText(bBuchungen ? QStringLiteral("MTAPath")
                                                                  : QStringLiteral("ErrorMTA"));

                grid.AddItem(QString());
                const int lZeile = grid.Rows() - 1;
                grid.setTextMatrix(lZeile, Spalte::kId, QString::number(lVerlaufId));
                grid.setTextMatrix(lZeile, Spalte::kAusfuehrzeit, msDatumZeit(dtAusfuehrung));
                grid.setTextMatrix(lZeile, Spalte::kStatus, sStatus);
                if (bArchiv) {
                    grid.setTextMatrix(lZeile, Spalte::kArchivLogfiles, sLogPfad);
                } else if (bKestoDirekt) {
                    const QString sKesto = sMta + pathSeparator();
                    grid.setTextMatrix(lZeile, Spalte::kImportdaten,
                                       sKesto + QStringLiteral("Kesto_MTA"));
                    grid.setTextMatrix(lZeile, Spalte::kBackup,
                                       sKesto + QStringLiteral("Kesto_BackUp"));
                    grid.setTextMatrix(lZeile, Spalte::kLogfiles,
                                       sKesto + QStringLiteral("Kesto_MTA"));
                } else {
                    grid.setTextMatrix(lZeile, Spalte::kImportdaten, sMta);
                    grid.setTextMatrix(lZeile, Spalte::kBackup, sBackup);
                    grid.setTextMatrix(lZeile, Spalte::kLogfiles, sLogPfad);
                }
                grid.setRowData(lZeile, QVariant::fromValue(static_cast<qlonglong>(lJobId)));
                bWeiter = oTL->Move(CRecordset::MoveNext);
            }
        }
        required(mofrmVerlauf)
            .lblLabel(frmVerlauf::Lbl::Ausfuehrungen)
            .setCaption(QStringLiteral("Ausführungen: ") + QString::number(lAnzahl) +
                        (lAnzahl == 1 ? QStringLiteral(" Element") : QStringLiteral(" Elemente")) +
                        msGetVerlaufFilterString());
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

QString cAdminJob::msGetZeiteinheit(long lArt) {
    return withErrorExit(QStringLiteral("msGetZeiteinheit"), kKlasse, QString(), [&](ErrorExit&) {
        static const char* const kSql[] = {"Day", "Week", "Month", "Year"};
        static const char* const kText[] = {"Tag(e)", "Woche(n)", "Monat(e)", "Jahr(e)"};
        const long lEinheit = required(moVerlaufFilter).lZeitEinheit;
        if (lEinheit < 1 || lEinheit > 4 || (lArt != 1 && lArt != 2)) {
            return QString();
        }
        return QString::fromUtf8(lArt == 1 ? kSql[lEinheit - 1] : kText[lEinheit - 1]);
    });
}

QString cAdminJob::msGetVerlaufFilterString() {
    return withErrorExit(
        QStringLiteral("msGetVerlaufFilterString"), kKlasse, QString(), [this](ErrorExit&) {
            const cVerlaufFilter& filter = required(moVerlaufFilter);
            return QStringLiteral(" (") + QStringLiteral("Zeitraum: ") +
                   QString::number(filter.lZeitWert) + QStringLiteral(" ") + msGetZeiteinheit(2) +
                   QStringLiteral(", ") + QStringLiteral("Typ: ") +
                   msGetVerlaufErfolgreichString(filter.byErfolgreich) + QStringLiteral(")");
        });
}

QString cAdminJob::msGetVerlaufErfolgreichString(std::uint8_t byCode) {
    return withErrorExit(
        QStringLiteral("msGetVerlaufErfolgreichString"), kKlasse, QString(), [&](ErrorExit&) {
            const QString sKesto = byCode == Erfolg::kKeineKestoDaten ? kestoName() : QString();
            return erfolgText(byCode, sKesto);
        });
}

void cAdminJob::mofrmVerlauf_evFrmVerlaufCMDButtonClicked(int Index) {
    withErrorExit(
        QStringLiteral("mofrmVerlauf_evFrmVerlaufCMDButtonClicked"), kKlasse, 0, [&](ErrorExit&) {
            switch (Index) {
                case Knopf::Schliessen:
                    if (mofrmVerlauf) {
                        mofrmVerlauf->window().Unload();
                    }
                    mofrmVerlauf.reset();
                    moVerlaufFilter.reset();
                    moGridVerlauf = nullptr;
                    break;
                case Knopf::Filter:
                    mShowFilter();
                    break;
                case Knopf::Loeschen:
                    if (mlMsgBox(QStringLiteral("Gesamten Verlauf zu diesem Auftrag löschen?"),
                                 MsgStyle::YesNo, msGetTitel()) == MsgAnswer::Yes) {
                        mloescheVerlauf();
                    }
                    break;
                default:
                    break;
            }
            return 0;
        });
}

void cAdminJob::mloescheVerlauf() {
    ErrorExit ex(QStringLiteral("mloescheVerlauf"), kKlasse);
    try {
        const QString sSql = QStringLiteral(" delete from ") + QStringLiteral("tAutoJobVerlauf") +
                             QStringLiteral(" where ") + QStringLiteral("tAutoJobVerlauf") +
                             QStringLiteral(".") + QStringLiteral("idAutoJobSchedule") +
                             QStringLiteral(" in ") + QStringLiteral("(select ") +
                             QStringLiteral("tAutoJobSchedule") + QStringLiteral(".") +
                             QStringLiteral("idAutoJobSchedule") + QStringLiteral(" FROM ") +
                             QStringLiteral("tAutoJobSchedule") + QStringLiteral(" WHERE ") +
                             QStringLiteral("idAutoJob") + QStringLiteral(" = ") +
                             QString::number(mlJobIdListe) + QStringLiteral(")");
        auto oTL = neuesRecordset(ex);
        oTL->Execute(sSql);
        mFuelleGridVerlauf();
    } catch (...) {
        ex.fail();
    }
}
