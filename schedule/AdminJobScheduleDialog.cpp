// The schedule dialog: opening and filling it, the switch between a single run and a
// repeating plan, and its buttons.
#include <utility>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "common/ModuleHelpers.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleRow.h"
#include "schedule/ScheduleTime.h"
#include "ui/Grid.h"
#include "ui/windows/frmZeitplan.h"

namespace {

using Knopf = frmZeitplan::Cmd;

bool istWiederholt(std::int32_t lTyp) {
    return lTyp == Haeufigkeit::kTaeglich || lTyp == Haeufigkeit::kWoechentlich ||
           lTyp == Haeufigkeit::kMonatlich || lTyp == Haeufigkeit::kMonatlichRelativ;
}

// Reads the row in the order the dialog has always read it; the name comes last.
void leseZeitplan(CRecordset& oTL, cSchedule& o) {
    o.plFrequencyType = alsLong32(oTL.ReadLong(QStringLiteral("FreqencyType")));
    o.plFrequencyRecurreFactor =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencyRecurrenceFactor")));
    o.plFrequencyIntervall = alsLong32(oTL.ReadLong(QStringLiteral("FrequencyInterval")));
    o.plFrequencyRelativeIntervall =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencyRelativeInterval")));
    o.plFrequencySubDayIntervall =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencySubDayinterval")));
    o.plFrequencySubDay = alsLong32(oTL.ReadLong(QStringLiteral("FrequencySubDay")));
    o.pvActiveStartTimeOfDay = alsLong32(oTL.ReadLong(QStringLiteral("ActiveStartTimeOfDay")));
    o.pvActiveEndTimeOfDay = alsLong32(oTL.ReadLong(QStringLiteral("ActiveEndTimeOfDay")));
    o.pdtActiveStartDate = oTL.ReadDate(QStringLiteral("ActiveStartDate"));
    o.pdtActiveEndDate = oTL.ReadDate(QStringLiteral("ActiveEndDate"));
    o.pbyAktiviert = alsByte(oTL.ReadLong(QStringLiteral("Aktiviert")));
    o.psName = oTL.ReadText(QStringLiteral("Name"));
}

// Date, time and "Ändern..." off, the description hidden: the state before an option is chosen.
void sperren(frmZeitplan& frm) {
    frm.ctlDatePicker().setEnabled(false);
    frm.ctlMaskEdBox().setEnabled(false);
    frm.cmdCommandButton(frmZeitplan::Cmd::Aendern).setEnabled(false);
    frm.lblLabel(frmZeitplan::Lbl::Intervall).setVisible(false);
}

void fensterSchliessen(std::shared_ptr<frmZeitplan>& fenster) {
    if (auto oFenster = std::exchange(fenster, nullptr)) {
        oFenster->window().Unload();
    }
}

}  // namespace

// The name of the schedule is handed over with the id but not needed: the row holds it.
void cAdminJob::mShowFRMZeitplanEigenschaften(long lZeitplanId, const QString&) {
    ErrorExit ex(QStringLiteral("mShowFRMZeitplanEigenschaften"), kKlasse);
    try {
        mbLadeZeitplan = true;
        mofrmZeitplanEigenschaften = std::make_shared<frmZeitplan>(
            required(services().windows).create(frmZeitplan::declaration()));
        frmZeitplan& frm = *mofrmZeitplanEigenschaften;
        frm.evFrmZeitplanCommandButtonClicked = mLeben.guard([this](int Index) {
            mofrmZeitplanEigenschaften_evFrmZeitplanCommandButtonClicked(Index);
        });
        frm.evFRMZeitplanOptOptionClicked = mLeben.guard(
            [this](int Index) { mofrmZeitplanEigenschaften_evFRMZeitplanOptOptionClicked(Index); });
        frm.evFRMZeitplanHilfe =
            mLeben.guard([this] { mofrmZeitplanEigenschaften_evFRMZeitplanHilfe(); });
        frm.evNaechsteAusfuehrungen = mLeben.guard([this] { mNaechsteAusfuehrungenZeigen(); });

        mlZeitplanId = lZeitplanId;
        mShowZeitplanEigenschaften(mlZeitplanId);
        if (auto& texte = services().coreTexte) {
            texte->SetFormIcon(frm.window(), kFensterSymbol);
        }
        mbLadeZeitplan = false;
        mNaechsteAusfuehrungenZeigen();
        // The buttons release the member while the window is on show; this copy keeps the
        // window alive until the modal showing has returned.
        const std::shared_ptr<frmZeitplan> oFenster = mofrmZeitplanEigenschaften;
        oFenster->window().Show(true);
    } catch (...) {
        mbLadeZeitplan = false;
        ex.fail();
    }
}

void cAdminJob::mShowZeitplanEigenschaften(long lZeitplanId) {
    ErrorExit ex(QStringLiteral("mShowZeitplanEigenschaften"), kKlasse);
    try {
        moSchedule = std::make_unique<cSchedule>();
        mDisableControlsZeitplanEigenschaften();
        if (mlJobId < 0) {
            mlMsgBox(QStringLiteral("Bitte legen Sie zuerst einen Auftrag an."),
                     MsgStyle::Information);
            return;
        }
        const QString sSql = QStringLiteral(" Select * from ") +
                             QStringLiteral("tAutoJobSchedule") + QStringLiteral(" where ") +
                             QStringLiteral("idAutoJobSchedule") + QStringLiteral(" = ") +
                             QString::number(lZeitplanId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        mlZeitplanZeilenversion = RowConflict::kNichtGelesen;
        msZeitplanGelesen.clear();
        if (oTL->OpenQuery(sSql, 2) >= 1) {
            leseZeitplan(*oTL, *moSchedule);
            mlZeitplanZeilenversion = RowConflict::version(*oTL);
            msZeitplanGelesen = moSchedule->psName;
        } else {
            mSetDefaultIntervallZeitplan(mlZeilenGrdZeitplan());
        }
        oTL->Close();
        oTL->Disconnect();
        oTL.reset();

        frmZeitplan& frm = required(mofrmZeitplanEigenschaften);
        const cSchedule& o = required(moSchedule);
        frm.ctlDatePicker().setValue(o.pdtActiveStartDate.date());
        int iOption = -1;
        if (o.plFrequencyType == Haeufigkeit::kEinmal) {
            iOption = frmZeitplan::Opt::Einmal;
            frm.ctlDatePicker().setEnabled(true);
            frm.ctlMaskEdBox().setEnabled(true);
            frm.ctlMaskEdBox().setText(msGetTimeString(zeitAlsText(o.pvActiveStartTimeOfDay)));
        } else if (istWiederholt(o.plFrequencyType)) {
            iOption = frmZeitplan::Opt::Wiederholt;
            frm.lblLabel(frmZeitplan::Lbl::Intervall).setVisible(true);
            // A later switch to a single run starts from the present time.
            frm.ctlMaskEdBox().setText(clockNow().time().toString(QStringLiteral("HH:mm")) +
                                       QStringLiteral(":00"));
            frm.lblLabel(frmZeitplan::Lbl::Intervall).setCaption(msGetIntervallString());
        }
        frm.chkCheckBox().setValue(o.pbyAktiviert);
        if (iOption >= 0) {
            frm.optOption(iOption).setValue(true);
        }
        frm.txtTextBox(frmZeitplan::Txt::Name).setText(required(moSchedule).psName);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mDisableControlsZeitplanEigenschaften() {
    withErrorExit(QStringLiteral("mDisableControlsZeitplanEigenschaften"), kKlasse, 0,
                  [this](ErrorExit&) {
                      sperren(required(mofrmZeitplanEigenschaften));
                      return 0;
                  });
}

void cAdminJob::mDisableControls() {
    withErrorExit(QStringLiteral("mDisableControls"), kKlasse, 0, [this](ErrorExit&) {
        sperren(required(mofrmZeitplanEigenschaften));
        return 0;
    });
}

void cAdminJob::mofrmZeitplanEigenschaften_evFRMZeitplanOptOptionClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmZeitplanEigenschaften_evFRMZeitplanOptOptionClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      frmZeitplan& frm = required(mofrmZeitplanEigenschaften);
                      if (Index == frmZeitplan::Opt::Einmal) {
                          mDisableControls();
                          frm.ctlDatePicker().setEnabled(true);
                          frm.ctlMaskEdBox().setEnabled(true);
                          if (!mbLadeZeitplan) {
                              frm.ctlDatePicker().SetFocus();
                          }
                      } else if (Index == frmZeitplan::Opt::Wiederholt) {
                          mDisableControls();
                          frm.lblLabel(frmZeitplan::Lbl::Intervall).setVisible(true);
                          frm.cmdCommandButton(frmZeitplan::Cmd::Aendern).setEnabled(true);
                          // An empty description means no recurrence is on show yet.
                          if (frm.lblLabel(frmZeitplan::Lbl::Intervall).Caption().isEmpty()) {
                              mShowZeitplanIntervall(frm.lblLabel(frmZeitplan::Lbl::Intervall),
                                                     mlZeilenGrdZeitplan());
                          }
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmZeitplanEigenschaften_evFrmZeitplanCommandButtonClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmZeitplanEigenschaften_evFrmZeitplanCommandButtonClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      switch (Index) {
                          case Knopf::Ok: {
                              const QString sMeldung = msCheckValuesFRMZeitplan();
                              if (!sMeldung.isEmpty()) {
                                  mlMsgBox(sMeldung, MsgStyle::Information);
                                  break;
                              }
                              if (!mZeitplanEigenschaftenUebernehmen()) {
                                  break;
                              }
                              fensterSchliessen(mofrmZeitplanEigenschaften);
                              mInitGridZeitplan();
                              mFuelleGridZeitplan();
                              break;
                          }
                          case Knopf::Abbrechen:
                              fensterSchliessen(mofrmZeitplanEigenschaften);
                              break;
                          case Knopf::Aendern:
                              mEditZeitintervall();
                              break;
                          default:
                              break;
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmZeitplanEigenschaften_evFRMZeitplanHilfe() {
    mHilfeAbruf();
}

void cAdminJob::mHilfeAbruf() {
    withErrorExit(QStringLiteral("mHilfeAbruf"), kKlasse, 0, [](ErrorExit&) {
        gShowWikiHelpExterneProgramme(HelpKeys::kSchedules);
        return 0;
    });
}

long cAdminJob::mlZeilenGrdZeitplan() {
    return moGridZeitplan ? moGridZeitplan->Rows() : 1;
}
