// What the list does with its selected jobs, and the events of the list window and its
// browser.
#include "app/JournalAnlass.h"
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "common/ModuleHelpers.h"
#include "joblist/ListTools.h"
#include "jobs/JobStore.h"
#include "ui/Browser.h"
#include "ui/ControlEvent.h"
#include "ui/windows/frmPakete.h"

namespace {

constexpr int kKeinUmschalter = 0;

}  // namespace

void cAdminJob::mChangeAktivJob() {
    ErrorExit ex(QStringLiteral("mChangeAktivJob"), kKlasse);
    try {
        const QString sBedingung = msAuswahlBedingung();
        if (sBedingung.isEmpty()) {
            return;
        }
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const long lAnzahl = oTL->OpenQuery(JobStore::rowsQuery(sBedingung), 2);
        if (lAnzahl >= 1) {
            bool bDatensatz = true;
            while (bDatensatz) {
                JobStore::toggleActive(*oTL);
                bDatensatz = oTL->Move(CRecordset::MoveNext);
            }
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mLoescheJob() {
    ErrorExit ex(QStringLiteral("mLoescheJob"), kKlasse);
    try {
        const QString sBedingung = msAuswahlBedingung();
        QString sFrage = QStringLiteral("Soll der Auftrag '<Auftrag>' gelöscht werden?");
        // With one job the name is that of the properties window's job, as it always was.
        const QString sAuftrag = sBedingung.contains(QLatin1Char(','))
                                     ? QStringLiteral(" '") + msJobNamen + QStringLiteral("' ")
                                     : msJobName;
        sFrage.replace(QStringLiteral("<Auftrag>"), sAuftrag);
        if (mlMsgBox(sFrage, MsgStyle::YesNo, msGetTitel()) != MsgAnswer::Yes) {
            return;
        }

        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        long lGeloescht = 0;
        {
            const JournalAnlass anlass(*oTL, QStringLiteral("Löschen"));
            lGeloescht = oTL->Execute(JobStore::deleteStatement(sBedingung));
        }
        oTL->Close();

        long lLogeintraege = 0;
        if (lGeloescht > 0) {
            if (oTL->OpenQuery(QStringLiteral("Select count(Id) AS Anzahl FROM "
                                              "SYS_JobAgentLogDaten WHERE AutoJobId") +
                                   sBedingung,
                               2) >= 1) {
                lLogeintraege = oTL->ReadLong(QStringLiteral("Anzahl"));
            }
            oTL->Close();
        }
        if (lLogeintraege > 0 &&
            mlMsgBox(QStringLiteral("Zu den gelöschten Aufträgen liegen Logeinträge vor. Sollen "
                                    "diese auch gelöscht werden?"),
                     MsgStyle::YesNoQuestion, msGetTitel()) == MsgAnswer::Yes) {
            oTL->Execute(QStringLiteral("DELETE FROM SYS_JobAgentLogDaten WHERE AutoJobId") +
                         sBedingung);
        }
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mPaketBearbeiten(int iAktion) {
    ErrorExit ex(QStringLiteral("mPaketBearbeiten"), kKlasse);
    try {
        const bool bMitListe = static_cast<bool>(moPakete);
        const int lAnzahlVorher = bMitListe ? moPakete->Auswahl().RecordCount() : 0;

        long lId = 0;
        QString sName;
        mJobIdErmitteln(lId, sName);
        const bool bMehrere = maAuftragsarten.size() > 1;

        switch (iAktion) {
            case PaketAktion::Neu:
                mShowFRMPakete(-1, QString());
                break;
            case PaketAktion::AktivUmschalten:
                mChangeAktivJob();
                mBrowserRefresh(false);
                break;
            case PaketAktion::Verlauf:
                if (bMehrere) {
                    mbBrowserSelectItem(lId);
                }
                mShowVerlauf(lId, sName);
                break;
            case PaketAktion::Aktualisieren:
                mBrowserRefresh(false);
                break;
            case PaketAktion::Loeschen:
                mLoescheJob();
                mBrowserRefresh(false);
                break;
            case PaketAktion::Bearbeiten:
                if (bMehrere) {
                    mbBrowserSelectItem(lId);
                }
                mShowFRMPakete(lId, sName);
                break;
            default:
                break;
        }

        if (moPakete && moPakete->Auswahl().RecordCount() != lAnzahlVorher) {
            mMenuStatus();
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::moPakete_ToolClick(const QString& sTool) {
    if (moPakete) {
        fToolClick(sTool);
    }
}

void cAdminJob::moPakete_SelectionChanged() {
    if (moPakete) {
        mMenuStatus();
    }
}

void cAdminJob::moPakete_Open() {
    if (moPakete) {
        mPaketBearbeiten(PaketAktion::Bearbeiten);
    }
}

void cAdminJob::moPakete_KeyDown(int iKeyCode, int iShift) {
    withErrorExit(QStringLiteral("moPakete_KeyDown"), kKlasse, 0, [&](ErrorExit&) {
        if (moPakete && iKeyCode == KeyCode::F1 && iShift == kKeinUmschalter) {
            gShowWikiHelpExterneProgramme(HelpKeys::kJobList);
        }
        return 0;
    });
}

void cAdminJob::moFrmPakete_evFrmPaketeCommandButtonClicked() {
    withErrorExit(QStringLiteral("moFrmPakete_evFrmPaketeCommandButtonClicked"), kKlasse, 0,
                  [this](ErrorExit&) {
                      // The event comes from the window's own unloading: what is left is to
                      // let go of it. An open properties window stays.
                      if (moFrmPakete) {
                          moFrmPakete.reset();
                          moPakete.reset();
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmPakete_evAuftragKopieren() {
    ErrorExit ex(QStringLiteral("mofrmPakete_evAuftragKopieren"), kKlasse);
    try {
        mlJobIdKopiert = 0;
        QString sName;
        mJobIdErmitteln(mlJobIdKopiert, sName);
        mbBrowserSelectItem(mlJobIdKopiert);
        mMenuStatus();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::moLogDaten_evInitCBOAuftragsart(IComboBox& cboComboBox, long lDatenart,
                                                bool bAlle) {
    withErrorExit(QStringLiteral("moLogDaten_evInitCBOAuftragsart"), kKlasse, 0, [&](ErrorExit&) {
        if (lDatenart < 0 || lDatenart > 255) {
            throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
        }
        mInitCBOAuftragsart(cboComboBox, static_cast<std::uint8_t>(lDatenart), bAlle);
        return 0;
    });
}
