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

const QString kDatumFolge = QStringLiteral("Das Enddatum muss grösser sein als das Anfangsdaum.");
const QString kDatumFalsch = QStringLiteral("Bitte geben Sie ein korrektes Datum ein.");
const QString kZeitFalsch = QStringLiteral("Bitte geben Sie eine korrekte Zeit ein.");
const QString kKeinWochentag = QStringLiteral("Bitte wählen Sie mindestens einen Wochentag aus.");

bool istDatum(const std::optional<QDate>& d) {
    return d && d->isValid() && *d != keinEndDatum().date();
}

}  // namespace

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked(int Index) {
    withErrorExit(
        QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked"), kKlasse, 0,
        [&](ErrorExit&) {
            std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
            frmZeitIntervall& f = required(oFenster);
            switch (Index) {
                case frmZeitIntervall::Haeufigkeit::Taeglich:
                    mShowFrameZeitIntervall(frmZeitIntervall::Fra::Taeglich);
                    f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Taeglich).setValue(true);
                    mNummern(frmZeitIntervall::Cbo::TageAlle, kTage, 1);
                    break;
                case frmZeitIntervall::Haeufigkeit::Woechentlich:
                    mShowFrameZeitIntervall(frmZeitIntervall::Fra::Woechentlich);
                    mNummern(frmZeitIntervall::Cbo::WochenAlle, kWochen, 1);
                    break;
                case frmZeitIntervall::Haeufigkeit::Monatlich:
                    mShowFrameZeitIntervall(frmZeitIntervall::Fra::Monatlich);
                    f.optMonatlich(frmZeitIntervall::Monatlich::Tag).setValue(true);
                    break;
                case frmZeitIntervall::Haeufigkeit::EinmaligUm:
                    mEnableHaeufigkeitProTag_Einmalig(false);
                    if (!mbLadeZeitintervall) {
                        f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).SetFocus();
                    }
                    break;
                case frmZeitIntervall::Haeufigkeit::Jede:
                    mEnableHaeufigkeitProTag_Einmalig(true);
                    if (!mbLadeZeitintervall) {
                        f.cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).SetFocus();
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
                      if (Index == frmZeitIntervall::Monatlich::Tag) {
                          mEnableMonatlichAm(true);
                          mNummern(frmZeitIntervall::Cbo::MonatTag, kMonatstage, 1);
                          mNummern(frmZeitIntervall::Cbo::MonateAlle, kMonate, 1);
                          mInitCBO_Wochentag(frmZeitIntervall::Cbo::AmWochentag, kKeineAuswahl);
                          mNummern(frmZeitIntervall::Cbo::AmMonateAlle, kMonate, kKeineAuswahl);
                          mInitCBO_First(frmZeitIntervall::Cbo::AmErster, kKeineAuswahl);
                          if (!mbLadeZeitintervall) {
                              f.cboComboBox(frmZeitIntervall::Cbo::MonatTag).SetFocus();
                          }
                      } else if (Index == frmZeitIntervall::Monatlich::Am) {
                          mEnableMonatlichAm(false);
                          mInitCBO_Wochentag(frmZeitIntervall::Cbo::AmWochentag, 1);
                          mNummern(frmZeitIntervall::Cbo::AmMonateAlle, kMonate, 1);
                          mInitCBO_First(frmZeitIntervall::Cbo::AmErster, 1);
                          mNummern(frmZeitIntervall::Cbo::MonatTag, kMonatstage, kKeineAuswahl);
                          mNummern(frmZeitIntervall::Cbo::MonateAlle, kMonate, kKeineAuswahl);
                          if (!mbLadeZeitintervall) {
                              f.cboComboBox(frmZeitIntervall::Cbo::AmErster).SetFocus();
                          }
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
                      IDatePicker& ende =
                          required(oFenster).ctlDatePicker(frmZeitIntervall::Datum::Ende);
                      if (Index == frmZeitIntervall::Enddatum::Mit) {
                          ende.setEnabled(true);
                          if (!mbLadeZeitintervall) {
                              ende.SetFocus();
                          }
                      } else if (Index == frmZeitIntervall::Enddatum::Ohne) {
                          ende.setEnabled(false);
                      }
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallComboboxClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallComboboxClicked"), kKlasse,
                  0, [&](ErrorExit&) {
                      if (mbLadeZeitintervall || Index != frmZeitIntervall::Cbo::JedeEinheit) {
                          return 0;
                      }
                      long lWert = mlCBOKey(frmZeitIntervall::Cbo::JedeAnzahl);
                      if (lWert >= kGrenzeIntervall) {
                          lWert = 1;
                      }
                      const long lAnzahl =
                          mlCBOKey(frmZeitIntervall::Cbo::JedeEinheit) == TagesEinheit::kMinuten
                              ? kMinuten
                              : kStunden;
                      mNummern(frmZeitIntervall::Cbo::JedeAnzahl, lAnzahl, lWert);
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked"),
                  kKlasse, 0, [&](ErrorExit&) {
                      if (Index == frmZeitIntervall::Cmd::Ok) {
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
                      mNaechsteAusfuehrungenZeigen();
                      return 0;
                  });
}

void cAdminJob::mofrmzeitIntervall_evFRMZeitplanHilfe() {
    mHilfeAbruf();
}

QString cAdminJob::msCheckValuesFRMZeitintervall() {
    return withErrorExit(
        QStringLiteral("msCheckValuesFRMZeitintervall"), kKlasse, QString(), [&](ErrorExit&) {
            frmZeitIntervall& f = required(mofrmzeitIntervall);
            const std::optional<QDate> start =
                f.ctlDatePicker(frmZeitIntervall::Datum::Anfang).Value();
            const std::optional<QDate> ende =
                f.ctlDatePicker(frmZeitIntervall::Datum::Ende).Value();
            if (f.optEnddatum(frmZeitIntervall::Enddatum::Mit).Value()) {
                // Equal days pass.
                if (start && ende && *ende < *start) {
                    f.ctlDatePicker(frmZeitIntervall::Datum::Anfang).SetFocus();
                    return kDatumFolge;
                }
                if (!istDatum(ende)) {
                    f.ctlDatePicker(frmZeitIntervall::Datum::Ende).SetFocus();
                    return kDatumFalsch;
                }
            }
            if (!istDatum(start)) {
                f.ctlDatePicker(frmZeitIntervall::Datum::Anfang).SetFocus();
                return kDatumFalsch;
            }
            // Whichever box is wrong, the focus goes to the first start of the
            // day.
            for (int i : {1, 2, 0}) {
                QString sZeit = f.ctlMaskEdBox(i).Text();
                if (!mbCheckValidTime(sZeit)) {
                    f.ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).SetFocus();
                    return kZeitFalsch;
                }
            }
            if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).Value() &&
                !mbCheckWochentag()) {
                f.chkCheckBox(frmZeitIntervall::Tag::Montag).SetFocus();
                return kKeinWochentag;
            }
            return QString();
        });
}
