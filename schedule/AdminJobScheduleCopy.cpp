// Copying a schedule of the job on show to other jobs: the window with the other jobs, each
// ticked at first, the ticks and what follows from them, and the copy run with its report.
#include <utility>

#include "app/JournalAnlass.h"
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "ui/Grid.h"
#include "ui/windows/frmZeitplanCopy.h"

namespace {

// Pure red, 0xBBGGRR.
constexpr long kFarbeKeineAuswahl = 255;
constexpr std::uint8_t kUeberschreiben = 1;

namespace Spalte {
constexpr int kAuswahl = 0;
constexpr int kAuftrag = 1;
constexpr int kTyp = 2;
constexpr int kMandant = 3;
}  // namespace Spalte

// The heading marks align every heading to the left.
const QString kUeberschriften = QStringLiteral("<|<Auftrag|<Typ|<Mandant/Kanzlei");
constexpr int kBreiten[] = {350, 2800, 2400, 2600};

const QString kZeilenende = QStringLiteral("\r\n");

}  // namespace

void cAdminJob::mShowZeitPlanKopieren(long lZeitplanId, const QString& sName) {
    ErrorExit ex(QStringLiteral("mShowZeitPlanKopieren"), kKlasse);
    try {
        mofrmZeitplanCopy = std::make_shared<frmZeitplanCopy>(
            required(services().windows).create(frmZeitplanCopy::declaration()));
        frmZeitplanCopy& frm = *mofrmZeitplanCopy;
        frm.evZeitplanCopyOk = mLeben.guard([this](std::uint8_t& byZeitplanUeberschreiben) {
            mofrmZeitplanCopy_evZeitplanCopyOk(byZeitplanUeberschreiben);
        });
        frm.evZeitplanCopyCancel =
            mLeben.guard([this] { mofrmZeitplanCopy_evZeitplanCopyCancel(); });
        frm.evZeitplanWaehlen = mLeben.guard(
            [this](bool& bAbwaehlen) { mofrmZeitplanCopy_evZeitplanWaehlen(bAbwaehlen); });
        frm.grdAuftrag_Click =
            mLeben.guard([this](int lRow, int lCol) { moGridAuftrag_Click(lRow, lCol); });
        moGridAuftrag = &frm.grdAuftrag();

        mlKopieAusgewaehlt = 0;
        mlKopieGesamt = 0;
        mlKopieZeitplanId = lZeitplanId;
        msKopieZeitplanName = sName;

        mInitGridAuftrag();
        mFuelleGridAuftrag();
        if (auto& texte = services().coreTexte) {
            texte->SetFormIcon(frm.window(), kFensterSymbol);
        }
        msKopieInfoFarbe = QString::number(frm.lblZeitplanCopyInfo().ForeColor());
        mCMDZeitplanWaehlen();
        frm.window().setCaption(QStringLiteral("Zeitplan <") + sName +
                                QStringLiteral("> kopieren"));
        frm.lblZeitplanHinweisCopy().setCaption(
            QStringLiteral("Um den Zeitplan <") + sName + QStringLiteral("> zu kopieren, wählen") +
            kZeilenende +
            QStringLiteral("Sie die Aufträge aus, in die der Zeitplan kopiert werden soll."));
        frm.lblZeitplanHinweisCopy().setForeColor(msKopieInfoFarbe.toLong());

        // The buttons unload the window while it is on show; this copy keeps it alive until
        // the modal showing has returned.
        const std::shared_ptr<frmZeitplanCopy> oFenster = mofrmZeitplanCopy;
        oFenster->window().Show(true);

        mEndeZeitplanKopieren();
        mBrowserRefresh(false);
    } catch (...) {
        mEndeZeitplanKopieren();
        ex.fail();
    }
}

void cAdminJob::mEndeZeitplanKopieren() {
    withErrorExit(QStringLiteral("mEndeZeitplanKopieren"), kKlasse, 0, [this](ErrorExit&) {
        moGridAuftrag = nullptr;
        if (auto oFenster = std::exchange(mofrmZeitplanCopy, nullptr)) {
            oFenster->window().Unload();
        }
        return 0;
    });
}

void cAdminJob::mInitGridAuftrag() {
    withErrorExit(QStringLiteral("mInitGridAuftrag"), kKlasse, 0, [this](ErrorExit&) {
        IGrid& grid = required(moGridAuftrag);
        grid.setCols(4);
        grid.setRows(1);
        grid.setFixedCols(0);
        grid.setFixedRows(1);
        grid.setFormatString(kUeberschriften);
        grid.setColBoolean(Spalte::kAuswahl, true);
        for (int c = 0; c < 4; ++c) {
            grid.setColWidth(c, kBreiten[c]);
        }
        mSetzeGridEigenschaften(grid);
        grid.Refresh();
        return 0;
    });
}

void cAdminJob::mFuelleGridAuftrag() {
    ErrorExit ex(QStringLiteral("mFuelleGridAuftrag"), kKlasse);
    try {
        IGrid& grid = required(moGridAuftrag);
        const QString sSql =
            QStringLiteral("SELECT ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.JobId, ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.Name, ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.Auftragsart, ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.[Mandant/Kanzlei] ") +
            QStringLiteral(" FROM  ") + QStringLiteral(" dbo.V_ZPK_Applications_System_AutoJob  ") +
            QStringLiteral(" ORDER BY ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.[Mandant/Kanzlei], ") +
            QStringLiteral("dbo.V_ZPK_Applications_System_AutoJob.Auftragsart");
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(sSql, 2) < 1) {
            oTL->Close();
            oTL->Disconnect();
            mlKopieGesamt = mlKopieAusgewaehlt;
            return;
        }
        bool bWeiter = true;
        while (bWeiter) {
            const long lJobId = oTL->ReadLong(QStringLiteral("JobId"));
            if (lJobId != mlJobId) {
                grid.setRows(grid.Rows() + 1);
                const int lRow = grid.Rows() - 1;
                ++mlKopieAusgewaehlt;
                grid.setCellChecked(lRow, Spalte::kAuswahl, true);
                grid.setTextMatrix(lRow, Spalte::kAuftrag, oTL->ReadText(QStringLiteral("Name")));
                grid.setCellData(lRow, Spalte::kAuftrag, QVariant::fromValue<qint64>(lJobId));
                grid.setTextMatrix(lRow, Spalte::kTyp,
                                   oTL->ReadText(QStringLiteral("Auftragsart")));
                grid.setTextMatrix(lRow, Spalte::kMandant,
                                   oTL->ReadText(QStringLiteral("Mandant/Kanzlei")));
            }
            bWeiter = oTL->Move(CRecordset::MoveNext);
        }
        oTL->Close();
        oTL->Disconnect();
        mlKopieGesamt = mlKopieAusgewaehlt;
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::moGridAuftrag_Click(int lRow, int lCol) {
    withErrorExit(QStringLiteral("moGridAuftrag_Click"), kKlasse, 0, [&](ErrorExit&) {
        if (lRow > 0 && lCol == Spalte::kAuswahl) {
            long lZeile = lRow;
            long lSpalte = lCol;
            mZeitplanCopySetzen(lZeile, lSpalte);
            mCMDZeitplanWaehlen();
        }
        return 0;
    });
}

void cAdminJob::mZeitplanCopySetzen(long& lRow, long& lCol) {
    withErrorExit(QStringLiteral("mZeitplanCopySetzen"), kKlasse, 0, [&](ErrorExit&) {
        if (lCol != Spalte::kAuswahl || lRow < 1) {
            return 0;
        }
        IGrid& grid = required(moGridAuftrag);
        const int iRow = static_cast<int>(lRow);
        if (grid.CellChecked(iRow, Spalte::kAuswahl)) {
            grid.setCellChecked(iRow, Spalte::kAuswahl, false);
            --mlKopieAusgewaehlt;
        } else {
            grid.setCellChecked(iRow, Spalte::kAuswahl, true);
            ++mlKopieAusgewaehlt;
        }
        return 0;
    });
}

void cAdminJob::mofrmZeitplanCopy_evZeitplanWaehlen(bool& bAbwaehlen) {
    mZeitplanWaehlen(bAbwaehlen);
}

void cAdminJob::mZeitplanWaehlen(bool bAbwaehlen) {
    withErrorExit(QStringLiteral("mZeitplanWaehlen"), kKlasse, 0, [&](ErrorExit&) {
        IGrid& grid = required(moGridAuftrag);
        for (int lRow = grid.FixedRows(); lRow < grid.Rows(); ++lRow) {
            grid.setCellChecked(lRow, Spalte::kAuswahl, !bAbwaehlen);
        }
        grid.Refresh();
        mlKopieAusgewaehlt = bAbwaehlen ? 0 : mlKopieGesamt;
        mCMDZeitplanWaehlen();
        return 0;
    });
}

void cAdminJob::mCMDZeitplanWaehlen() {
    withErrorExit(QStringLiteral("mCMDZeitplanWaehlen"), kKlasse, 0, [this](ErrorExit&) {
        if (!mofrmZeitplanCopy) {
            return 0;
        }
        frmZeitplanCopy& frm = *mofrmZeitplanCopy;
        long lFarbe = msKopieInfoFarbe.toLong();
        frm.cmdOk().setEnabled(true);
        if (mlKopieAusgewaehlt == mlKopieGesamt) {
            frm.cmdAbwaehlen().setEnabled(true);
            frm.cmdAuswaehlen().setEnabled(false);
        } else {
            frm.cmdAuswaehlen().setEnabled(true);
            if (mlKopieAusgewaehlt < 1) {
                frm.cmdAbwaehlen().setEnabled(false);
                frm.cmdOk().setEnabled(false);
                lFarbe = kFarbeKeineAuswahl;
            } else {
                frm.cmdAbwaehlen().setEnabled(true);
            }
        }
        frm.lblZeitplanCopyInfo().setCaption(
            QStringLiteral("Zeitplan für ") + QString::number(mlKopieAusgewaehlt) +
            QStringLiteral(" von ") + QString::number(mlKopieGesamt) +
            QStringLiteral(" Aufträgen kopieren."));
        frm.lblZeitplanCopyInfo().setForeColor(lFarbe);
        return 0;
    });
}

void cAdminJob::mofrmZeitplanCopy_evZeitplanCopyOk(std::uint8_t& byZeitplanUeberschreiben) {
    withErrorExit(QStringLiteral("mofrmZeitplanCopy_evZeitplanCopyOk"), kKlasse, 0,
                  [&](ErrorExit&) {
                      mZeitplanKopieren(byZeitplanUeberschreiben);
                      if (mofrmZeitplanCopy) {
                          mofrmZeitplanCopy->window().Unload();
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmZeitplanCopy_evZeitplanCopyCancel() {
    withErrorExit(QStringLiteral("mofrmZeitplanCopy_evZeitplanCopyCancel"), kKlasse, 0,
                  [this](ErrorExit&) {
                      if (mofrmZeitplanCopy) {
                          mofrmZeitplanCopy->window().Unload();
                      }
                      return 0;
                  });
}

void cAdminJob::mZeitplanKopieren(std::uint8_t byZeitplanUeberschreiben) {
    ErrorExit ex(QStringLiteral("mZeitplanKopieren"), kKlasse);
    try {
        if (!moGridAuftrag) {
            return;
        }
        IGrid& grid = *moGridAuftrag;
        mlKopieErfolgreich = 0;
        mlKopieNichtUeberschrieben = 0;
        mlKopieNeu = 0;
        mbyKopieUeberschreiben = byZeitplanUeberschreiben;

        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const JournalAnlass anlass(*oTL, QStringLiteral("Kopieren"));
        // One record, read once, serves every job.
        moSchedule = std::make_unique<cSchedule>();
        mSetzeScheduleObjektAusDB(static_cast<std::int32_t>(mlKopieZeitplanId));
        for (int lRow = grid.FixedRows(); lRow < grid.Rows(); ++lRow) {
            if (grid.CellChecked(lRow, Spalte::kAuswahl)) {
                long lJobId = static_cast<long>(grid.CellData(lRow, Spalte::kAuftrag).toLongLong());
                mZeitplanCopy(lJobId);
            }
        }
        moSchedule.reset();

        const QString sMeldung =
            QStringLiteral("Der Kopiervorgang für den Zeitplan '") + msKopieZeitplanName +
            QStringLiteral("' wurde mit folgendem Ergebnis beendet:") + kZeilenende + kZeilenende +
            QString::number(mlKopieAusgewaehlt) +
            QStringLiteral(" Aufträge ausgewählt und vorhandene Zeitpläne ") +
            (mbyKopieUeberschreiben == kUeberschreiben ? QString() : QStringLiteral("nicht ")) +
            QStringLiteral("überschreiben.") + kZeilenende + kZeilenende +
            QStringLiteral("Zeitpläne erfolgreich kopiert: ") +
            QString::number(mlKopieErfolgreich) + kZeilenende +
            QStringLiteral("davon Zeitpläne überschrieben: ") +
            QString::number(mlKopieErfolgreich - mlKopieNeu) + kZeilenende +
            QStringLiteral("davon Zeitpläne neu angelegt : ") + QString::number(mlKopieNeu) +
            kZeilenende + QStringLiteral("Zeitplan für Auftrag nicht überschrieben: ") +
            QString::number(mlKopieNichtUeberschrieben);
        mlMsgBox(sMeldung, MsgStyle::Information, QStringLiteral("Hinweis"));
    } catch (...) {
        moSchedule.reset();
        ex.fail();
    }
}

void cAdminJob::mZeitplanCopy(long& lJobId) {
    ErrorExit ex(QStringLiteral("mZeitplanCopy"), kKlasse);
    try {
        if (lJobId <= 0) {
            return;
        }
        // The name goes in as it stands: an apostrophe in it breaks the statement, and the
        // error exit reports it before anything is written for this job.
        const QString sSql = QStringLiteral(" SELECT ") + QStringLiteral("idAutoJobSchedule") +
                             QStringLiteral(" FROM ") + QStringLiteral("tAutoJobSchedule") +
                             QStringLiteral(" WHERE (") + QStringLiteral("idAutoJob") +
                             QStringLiteral(" = ") + QString::number(lJobId) +
                             QStringLiteral(") AND (") + QStringLiteral("Name") +
                             QStringLiteral(" = '") + msKopieZeitplanName + QStringLiteral("')");
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        cSchedule& oSchedule = required(moSchedule);
        oSchedule.psName = msKopieZeitplanName;
        const long lAnzahl = oTL->OpenQuery(sSql, 2);
        if (lAnzahl != 1) {
            // No schedule of that name, or several: they stay, and one more joins them.
            long lNeu = -1;
            mZeitplanSpeichern(lNeu, lJobId, oSchedule);
            ++mlKopieErfolgreich;
            ++mlKopieNeu;
        } else if (mbyKopieUeberschreiben != kUeberschreiben) {
            ++mlKopieNichtUeberschrieben;
        } else {
            long lZeitplanId = oTL->ReadLong(QStringLiteral("idAutoJobSchedule"));
            mZeitplanSpeichern(lZeitplanId, lJobId, oSchedule);
            ++mlKopieErfolgreich;
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}
