// The recurrence dialog: opened on moSchedule, filled from it and written back into it. The
// table is left to the schedule dialog's OK.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/CoreLibraries.h"
#include "common/ErrorExit.h"
#include "common/Services.h"
#include "schedule/RecurrenceRanges.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleTime.h"

namespace {

using namespace ZeitintervallBereich;

const QString kCaption = QStringLiteral("Zeitplan für wiederkehrende Aufträge bearbeiten");
const QString kAuftragsname = QStringLiteral("Auftragsname:   ");

QDateTime tagAusPicker(IDatePicker& picker) {
    return QDateTime(picker.Value().value_or(QDate()), QTime(0, 0));
}

// The typed hours and minutes as the digits of HHMMSS, seconds 00.
QVariant zeitAusBox(ITimeBox& box) {
    return QVariant(box.Ziffern() + QStringLiteral("00"));
}

}  // namespace

void cAdminJob::mEditZeitintervall() {
    withErrorExit(QStringLiteral("mEditZeitintervall"), kKlasse, 0, [&](ErrorExit&) {
        mbLadeZeitintervall = true;
        mofrmzeitIntervall = std::make_shared<frmZeitIntervall>(
            required(services().windows).create(frmZeitIntervall::declaration()));
        mZeitintervallVerbinden();
        mFuelleFrmZeitintervall();
        // The dialog may have gone already when filling failed.
        if (!mofrmzeitIntervall) {
            mbLadeZeitintervall = false;
            return 0;
        }
        std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
        required(services().coreTexte).SetFormIcon(oFenster->window(), kFensterSymbol);
        mbLadeZeitintervall = false;
        mNaechsteAusfuehrungenZeigen();
        oFenster->window().Show(true);
        return 0;
    });
    mbLadeZeitintervall = false;
}

void cAdminJob::mZeitintervallVerbinden() {
    frmZeitIntervall& f = required(mofrmzeitIntervall);
    f.evFrmZeitintervallCommandButtonClicked = mLeben.guard(
        [this](int Index) { mofrmzeitIntervall_evFrmZeitintervallCommandButtonClicked(Index); });
    f.evFrmZeitintervallOptionHaeufigkeitClicked = mLeben.guard([this](int Index) {
        mofrmzeitIntervall_evFrmZeitintervallOptionHaeufigkeitClicked(Index);
    });
    f.evFrmZeitintervallOptionMonatlichClicked = mLeben.guard(
        [this](int Index) { mofrmzeitIntervall_evFrmZeitintervallOptionMonatlichClicked(Index); });
    f.evFrmZeitintervallOptionEnddatumClicked = mLeben.guard(
        [this](int Index) { mofrmzeitIntervall_evFrmZeitintervallOptionEnddatumClicked(Index); });
    f.evFrmZeitintervallComboboxClicked = mLeben.guard(
        [this](int Index) { mofrmzeitIntervall_evFrmZeitintervallComboboxClicked(Index); });
    f.evFRMZeitplanHilfe = mLeben.guard([this] { mofrmzeitIntervall_evFRMZeitplanHilfe(); });
    f.evNaechsteAusfuehrungen = mLeben.guard([this] { mNaechsteAusfuehrungenZeigen(); });
}

void cAdminJob::mFuelleFrmZeitintervall() {
    withErrorExit(QStringLiteral("mFuelleFrmZeitintervall"), kKlasse, 0, [&](ErrorExit&) {
        // Events raised while filling may touch the window; hold it for the whole run.
        std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
        frmZeitIntervall& f = required(oFenster);
        const cSchedule& o = required(moSchedule);
        f.window().setCaption(kCaption);
        f.lblLabel(frmZeitIntervall::Lbl::Auftragsname).setCaption(kAuftragsname + o.psName);

        const QString sStart = msGetTimeString(zeitAlsText(o.pvActiveStartTimeOfDay));
        const QString sEnde = msGetTimeString(zeitAlsText(o.pvActiveEndTimeOfDay));

        switch (o.plFrequencyType) {
            case Haeufigkeit::kTaeglich:
                mShowFrameZeitIntervall(frmZeitIntervall::Fra::Taeglich);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Taeglich).setValue(true);
                mNummern(frmZeitIntervall::Cbo::TageAlle, kTage, o.plFrequencyIntervall);
                break;
            case Haeufigkeit::kMonatlich:
                mShowFrameZeitIntervall(frmZeitIntervall::Fra::Monatlich);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Monatlich).setValue(true);
                mEnableMonatlichAm(true);
                f.optMonatlich(frmZeitIntervall::Monatlich::Tag).setValue(true);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).setText(sStart);
                mNummern(frmZeitIntervall::Cbo::MonatTag, kMonatstage, o.plFrequencyIntervall);
                mNummern(frmZeitIntervall::Cbo::MonateAlle, kMonate, o.plFrequencyRecurreFactor);
                mInitCBO_Wochentag(frmZeitIntervall::Cbo::AmWochentag, kKeineAuswahl);
                mNummern(frmZeitIntervall::Cbo::AmMonateAlle, kMonate, kKeineAuswahl);
                mInitCBO_First(frmZeitIntervall::Cbo::AmErster, kKeineAuswahl);
                break;
            case Haeufigkeit::kMonatlichRelativ:
                mShowFrameZeitIntervall(frmZeitIntervall::Fra::Monatlich);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Monatlich).setValue(true);
                mEnableMonatlichAm(false);
                f.optMonatlich(frmZeitIntervall::Monatlich::Am).setValue(true);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).setText(sStart);
                mInitCBO_Wochentag(frmZeitIntervall::Cbo::AmWochentag, o.plFrequencyIntervall);
                mNummern(frmZeitIntervall::Cbo::AmMonateAlle, kMonate, o.plFrequencyRecurreFactor);
                mInitCBO_First(frmZeitIntervall::Cbo::AmErster, o.plFrequencyRelativeIntervall);
                mNummern(frmZeitIntervall::Cbo::MonatTag, kMonatstage, kKeineAuswahl);
                mNummern(frmZeitIntervall::Cbo::MonateAlle, kMonate, kKeineAuswahl);
                break;
            default:  // weekly, and whatever else stands in the record
                mShowFrameZeitIntervall(frmZeitIntervall::Fra::Woechentlich);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).setValue(true);
                mNummern(frmZeitIntervall::Cbo::WochenAlle, kWochen, o.plFrequencyRecurreFactor);
                mSetzeWochentage(o.plFrequencyIntervall);
                break;
        }

        switch (o.plFrequencySubDay) {
            case TagesEinheit::kEinmalig:
                mEnableHaeufigkeitProTag_Einmalig(false);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::EinmaligUm).setValue(true);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).setText(sStart);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).setText(sStart);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm).setText(sEnde);
                mInitCBO_MinuteStunde(frmZeitIntervall::Cbo::JedeEinheit, TagesEinheit::kStunden);
                mNummern(frmZeitIntervall::Cbo::JedeAnzahl, kStunden, 1);
                break;
            case TagesEinheit::kMinuten:
            case TagesEinheit::kStunden:
                mEnableHaeufigkeitProTag_Einmalig(true);
                f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).setValue(true);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).setText(sStart);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).setText(sStart);
                f.ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm).setText(sEnde);
                mInitCBO_MinuteStunde(frmZeitIntervall::Cbo::JedeEinheit, o.plFrequencySubDay);
                mNummern(frmZeitIntervall::Cbo::JedeAnzahl,
                         o.plFrequencySubDay == TagesEinheit::kStunden ? kStunden : kMinuten,
                         o.plFrequencySubDayIntervall);
                break;
            default:
                break;
        }

        f.ctlDatePicker(frmZeitIntervall::Datum::Anfang).setValue(o.pdtActiveStartDate.date());
        if (istOhneEnde(o.pdtActiveEndDate)) {
            f.ctlDatePicker(frmZeitIntervall::Datum::Ende).setEnabled(false);
            f.optEnddatum(frmZeitIntervall::Enddatum::Ohne).setValue(true);
            f.ctlDatePicker(frmZeitIntervall::Datum::Ende).setValue(clockNow().date());
        } else {
            f.ctlDatePicker(frmZeitIntervall::Datum::Ende).setEnabled(true);
            f.optEnddatum(frmZeitIntervall::Enddatum::Mit).setValue(true);
            f.ctlDatePicker(frmZeitIntervall::Datum::Ende).setValue(o.pdtActiveEndDate.date());
        }
        return 0;
    });
}

void cAdminJob::mSpeichernZeitintervall() {
    withErrorExit(QStringLiteral("mSpeichernZeitintervall"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        cSchedule& o = required(moSchedule);
        mInitZeitplan();

        if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Taeglich).Value()) {
            o.plFrequencyType = Haeufigkeit::kTaeglich;
        } else if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).Value()) {
            o.plFrequencyType = Haeufigkeit::kWoechentlich;
        } else if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Monatlich).Value()) {
            if (f.optMonatlich(frmZeitIntervall::Monatlich::Tag).Value()) {
                o.plFrequencyType = Haeufigkeit::kMonatlich;
            } else if (f.optMonatlich(frmZeitIntervall::Monatlich::Am).Value()) {
                o.plFrequencyType = Haeufigkeit::kMonatlichRelativ;
            }
        }

        switch (o.plFrequencyType) {
            case Haeufigkeit::kTaeglich:
                o.plFrequencyIntervall = mlCBOKey(frmZeitIntervall::Cbo::TageAlle);
                break;
            case Haeufigkeit::kWoechentlich:
                o.plFrequencyRecurreFactor = mlCBOKey(frmZeitIntervall::Cbo::WochenAlle);
                o.plFrequencyIntervall = mlGetWochentage();
                break;
            case Haeufigkeit::kMonatlich:
                o.plFrequencyRecurreFactor = mlCBOKey(frmZeitIntervall::Cbo::MonateAlle);
                o.plFrequencyIntervall = mlCBOKey(frmZeitIntervall::Cbo::MonatTag);
                break;
            case Haeufigkeit::kMonatlichRelativ:
                o.plFrequencyRecurreFactor = mlCBOKey(frmZeitIntervall::Cbo::AmMonateAlle);
                o.plFrequencyIntervall = mlCBOKey(frmZeitIntervall::Cbo::AmWochentag);
                o.plFrequencyRelativeIntervall = mlCBOKey(frmZeitIntervall::Cbo::AmErster);
                break;
            default:
                break;
        }

        if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::EinmaligUm).Value()) {
            o.plFrequencySubDay = TagesEinheit::kEinmalig;
        } else if (f.optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).Value()) {
            o.plFrequencySubDay = mlCBOKey(frmZeitIntervall::Cbo::JedeEinheit);
        }

        switch (o.plFrequencySubDay) {
            case TagesEinheit::kEinmalig:
                o.plFrequencySubDayIntervall = mlCBOKey(frmZeitIntervall::Cbo::JedeAnzahl);
                o.pvActiveStartTimeOfDay =
                    zeitAusBox(f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm));
                o.pvActiveEndTimeOfDay =
                    zeitAusBox(f.ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm));
                break;
            case TagesEinheit::kMinuten:
            case TagesEinheit::kStunden:
                o.pvActiveStartTimeOfDay =
                    zeitAusBox(f.ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm));
                o.pvActiveEndTimeOfDay =
                    zeitAusBox(f.ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm));
                o.plFrequencySubDayIntervall = mlCBOKey(frmZeitIntervall::Cbo::JedeAnzahl);
                break;
            default:
                break;
        }

        o.pdtActiveStartDate = tagAusPicker(f.ctlDatePicker(frmZeitIntervall::Datum::Anfang));
        if (f.optEnddatum(frmZeitIntervall::Enddatum::Ohne).Value()) {
            o.pdtActiveEndDate = keinEndDatum();
        } else if (f.optEnddatum(frmZeitIntervall::Enddatum::Mit).Value()) {
            o.pdtActiveEndDate = tagAusPicker(f.ctlDatePicker(frmZeitIntervall::Datum::Ende));
        }
        return 0;
    });
}
