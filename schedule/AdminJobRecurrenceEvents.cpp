// What the recurrence dialog's options, combos and buttons do, and the checks before OK.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "schedule/RecurrenceRanges.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleTime.h"
#include "ui/windows/frmZeitplan.h"

namespace {

using namespace ZeitintervallBereich;
// An interval below this stays when the unit changes; it fits both minutes and hours.
constexpr long kGrenzeIntervall = 25;
constexpr long kStilInformation = 64;
constexpr int kOk = 0;

const QString kDatumFolge = QStringLiteral("Das Enddatum muss grösser sein als das Anfangsdaum.");
const QString kDatumFalsch = QStringLiteral("Bitte geben Sie ein korrektes Datum ein.");
const QString kZeitFalsch = QStringLiteral("Bitte geben Sie eine korrekte Zeit ein.");
const QString kKeinWochentag = QStringLiteral("Bitte wählen Sie mindestens einen Wochentag aus.");

bool istDatum(const std::optional<QDate>& d) {
    return d && d->isValid() && *d != keinEndDatum().date();
}

}  // namespace

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
                      frmZeitIntervall& f = required(oFenster);
                      switch (Index) {
                          case 0:
                              mShowFrameZeitIntervall(1);
                              f.optHaeufigkeit(0).setValue(true);
                              mNummern(0, kTage, 1);
                              break;
                          case 1:
                              mShowFrameZeitIntervall(5);
                              mNummern(8, kWochen, 1);
                              break;
                          case 2:
                              mShowFrameZeitIntervall(2);
                              f.optMonatlich(0).setValue(true);
                              break;
                          case 3:
                              mEnableHaeufigkeitProTag_Einmalig(false);
                              if (!mbLadeZeitintervall) {
                                  f.ctlMaskEdBox(0).SetFocus();
                              }
                              break;
                          case 4:
                              mEnableHaeufigkeitProTag_Einmalig(true);
                              if (!mbLadeZeitintervall) {
                                  f.cboComboBox(6).SetFocus();
                              }
                              break;
                          default:
                              break;
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallOptionMonatlichClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallOptionMonatlichClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
                      frmZeitIntervall& f = required(oFenster);
                      if (Index == 0) {
                          mEnableMonatlichAm(true);
                          mNummern(1, kMonatstage, 1);
                          mNummern(2, kMonate, 1);
                          mInitCBO_Wochentag(4, kKeineAuswahl);
                          mNummern(5, kMonate, kKeineAuswahl);
                          mInitCBO_First(3, kKeineAuswahl);
                          if (!mbLadeZeitintervall) {
                              f.cboComboBox(1).SetFocus();
                          }
                      } else if (Index == 1) {
                          mEnableMonatlichAm(false);
                          mInitCBO_Wochentag(4, 1);
                          mNummern(5, kMonate, 1);
                          mInitCBO_First(3, 1);
                          mNummern(1, kMonatstage, kKeineAuswahl);
                          mNummern(2, kMonate, kKeineAuswahl);
                          if (!mbLadeZeitintervall) {
                              f.cboComboBox(3).SetFocus();
                          }
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
                      IDatePicker& ende = required(oFenster).ctlDatePicker(1);
                      if (Index == 0) {
                          ende.setEnabled(true);
                          if (!mbLadeZeitintervall) {
                              ende.SetFocus();
                          }
                      } else if (Index == 1) {
                          ende.setEnabled(false);
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallComboboxClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallComboboxClicked"), kKlasse,
                  0, [&](ErrorExit&) {
                      if (mbLadeZeitintervall || Index != 7) {
                          return 0;
                      }
                      long lWert = mlCBOKey(6);
                      if (lWert >= kGrenzeIntervall) {
                          lWert = 1;
                      }
                      const long lAnzahl =
                          mlCBOKey(7) == TagesEinheit::kMinuten ? kMinuten : kStunden;
                      mNummern(6, lAnzahl, lWert);
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      if (Index == kOk) {
                          const QString sMeldung = msCheckValuesFRMZeitintervall();
                          if (!sMeldung.isEmpty()) {
                              mlMsgBox(sMeldung, kStilInformation);
                              return 0;
                          }
                          mSpeichernZeitintervall();
                      }
                      if (auto oFenster = std::exchange(mofrmzeitIntervall, nullptr)) {
                          oFenster->window().Unload();
                      }
                      if (mofrmZeitplanEigenschaften) {
                          mofrmZeitplanEigenschaften->lblLabel(frmZeitplan::Lbl::Intervall)
                              .setCaption(msGetIntervallString());
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFRMZeitplanHilfe() {
    mHilfeAbruf();
}

QString cAdminJob::msCheckValuesFRMZeitintervall() {
    return withErrorExit(QStringLiteral("msCheckValuesFRMZeitintervall"), kKlasse, QString(),
                         [&](ErrorExit&) {
                             frmZeitIntervall& f = required(mofrmzeitIntervall);
                             const std::optional<QDate> start = f.ctlDatePicker(0).Value();
                             const std::optional<QDate> ende = f.ctlDatePicker(1).Value();
                             if (f.optEnddatum(0).Value()) {
                                 // Equal days pass.
                                 if (start && ende && *ende < *start) {
                                     f.ctlDatePicker(0).SetFocus();
                                     return kDatumFolge;
                                 }
                                 if (!istDatum(ende)) {
                                     f.ctlDatePicker(1).SetFocus();
                                     return kDatumFalsch;
                                 }
                             }
                             if (!istDatum(start)) {
                                 f.ctlDatePicker(0).SetFocus();
                                 return kDatumFalsch;
                             }
                             // Whichever box is wrong, the focus goes to the first start of the
                             // day.
                             for (int i : {1, 2, 0}) {
                                 QString sZeit = f.ctlMaskEdBox(i).Text();
                                 if (!mbCheckValidTime(sZeit)) {
                                     f.ctlMaskEdBox(1).SetFocus();
                                     return kZeitFalsch;
                                 }
                             }
                             if (f.optHaeufigkeit(1).Value() && !mbCheckWochentag()) {
                                 f.chkCheckBox(0).SetFocus();
                                 return kKeinWochentag;
                             }
                             return QString();
                         });
}
