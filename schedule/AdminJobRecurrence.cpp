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
}

void cAdminJob::mFuelleFrmZeitintervall() {
    withErrorExit(QStringLiteral("mFuelleFrmZeitintervall"), kKlasse, 0, [&](ErrorExit&) {
        // Events raised while filling may touch the window; hold it for the whole run.
        std::shared_ptr<frmZeitIntervall> oFenster = mofrmzeitIntervall;
        frmZeitIntervall& f = required(oFenster);
        const cSchedule& o = required(moSchedule);
        f.window().setCaption(kCaption);
        f.lblLabel(6).setCaption(kAuftragsname + o.psName);

        const QString sStart = msGetTimeString(zeitAlsText(o.pvActiveStartTimeOfDay));
        const QString sEnde = msGetTimeString(zeitAlsText(o.pvActiveEndTimeOfDay));

        switch (o.plFrequencyType) {
            case Haeufigkeit::kTaeglich:
                mShowFrameZeitIntervall(1);
                f.optHaeufigkeit(0).setValue(true);
                mNummern(0, kTage, o.plFrequencyIntervall);
                break;
            case Haeufigkeit::kMonatlich:
                mShowFrameZeitIntervall(2);
                f.optHaeufigkeit(2).setValue(true);
                mEnableMonatlichAm(true);
                f.optMonatlich(0).setValue(true);
                f.ctlMaskEdBox(0).setText(sStart);
                mNummern(1, kMonatstage, o.plFrequencyIntervall);
                mNummern(2, kMonate, o.plFrequencyRecurreFactor);
                mInitCBO_Wochentag(4, kKeineAuswahl);
                mNummern(5, kMonate, kKeineAuswahl);
                mInitCBO_First(3, kKeineAuswahl);
                break;
            case Haeufigkeit::kMonatlichRelativ:
                mShowFrameZeitIntervall(2);
                f.optHaeufigkeit(2).setValue(true);
                mEnableMonatlichAm(false);
                f.optMonatlich(1).setValue(true);
                f.ctlMaskEdBox(0).setText(sStart);
                mInitCBO_Wochentag(4, o.plFrequencyIntervall);
                mNummern(5, kMonate, o.plFrequencyRecurreFactor);
                mInitCBO_First(3, o.plFrequencyRelativeIntervall);
                mNummern(1, kMonatstage, kKeineAuswahl);
                mNummern(2, kMonate, kKeineAuswahl);
                break;
            default:  // weekly, and whatever else stands in the record
                mShowFrameZeitIntervall(5);
                f.optHaeufigkeit(1).setValue(true);
                mNummern(8, kWochen, o.plFrequencyRecurreFactor);
                mSetzeWochentage(o.plFrequencyIntervall);
                break;
        }

        switch (o.plFrequencySubDay) {
            case TagesEinheit::kEinmalig:
                mEnableHaeufigkeitProTag_Einmalig(false);
                f.optHaeufigkeit(3).setValue(true);
                f.ctlMaskEdBox(0).setText(sStart);
                f.ctlMaskEdBox(1).setText(sStart);
                f.ctlMaskEdBox(2).setText(sEnde);
                mInitCBO_MinuteStunde(7, TagesEinheit::kStunden);
                mNummern(6, kStunden, 1);
                break;
            case TagesEinheit::kMinuten:
            case TagesEinheit::kStunden:
                mEnableHaeufigkeitProTag_Einmalig(true);
                f.optHaeufigkeit(4).setValue(true);
                f.ctlMaskEdBox(0).setText(sStart);
                f.ctlMaskEdBox(1).setText(sStart);
                f.ctlMaskEdBox(2).setText(sEnde);
                mInitCBO_MinuteStunde(7, o.plFrequencySubDay);
                mNummern(6, o.plFrequencySubDay == TagesEinheit::kStunden ? kStunden : kMinuten,
                         o.plFrequencySubDayIntervall);
                break;
            default:
                break;
        }

        f.ctlDatePicker(0).setValue(o.pdtActiveStartDate.date());
        if (istOhneEnde(o.pdtActiveEndDate)) {
            f.ctlDatePicker(1).setEnabled(false);
            f.optEnddatum(1).setValue(true);
            f.ctlDatePicker(1).setValue(clockNow().date());
        } else {
            f.ctlDatePicker(1).setEnabled(true);
            f.optEnddatum(0).setValue(true);
            f.ctlDatePicker(1).setValue(o.pdtActiveEndDate.date());
        }
        return 0;
    });
}

void cAdminJob::mSpeichernZeitintervall() {
    withErrorExit(QStringLiteral("mSpeichernZeitintervall"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        cSchedule& o = required(moSchedule);
        mInitZeitplan();

        if (f.optHaeufigkeit(0).Value()) {
            o.plFrequencyType = Haeufigkeit::kTaeglich;
        } else if (f.optHaeufigkeit(1).Value()) {
            o.plFrequencyType = Haeufigkeit::kWoechentlich;
        } else if (f.optHaeufigkeit(2).Value()) {
            if (f.optMonatlich(0).Value()) {
                o.plFrequencyType = Haeufigkeit::kMonatlich;
            } else if (f.optMonatlich(1).Value()) {
                o.plFrequencyType = Haeufigkeit::kMonatlichRelativ;
            }
        }

        switch (o.plFrequencyType) {
            case Haeufigkeit::kTaeglich:
                o.plFrequencyIntervall = mlCBOKey(0);
                break;
            case Haeufigkeit::kWoechentlich:
                o.plFrequencyRecurreFactor = mlCBOKey(8);
                o.plFrequencyIntervall = mlGetWochentage();
                break;
            case Haeufigkeit::kMonatlich:
                o.plFrequencyRecurreFactor = mlCBOKey(2);
                o.plFrequencyIntervall = mlCBOKey(1);
                break;
            case Haeufigkeit::kMonatlichRelativ:
                o.plFrequencyRecurreFactor = mlCBOKey(5);
                o.plFrequencyIntervall = mlCBOKey(4);
                o.plFrequencyRelativeIntervall = mlCBOKey(3);
                break;
            default:
                break;
        }

        if (f.optHaeufigkeit(3).Value()) {
            o.plFrequencySubDay = TagesEinheit::kEinmalig;
        } else if (f.optHaeufigkeit(4).Value()) {
            o.plFrequencySubDay = mlCBOKey(7);
        }

        switch (o.plFrequencySubDay) {
            case TagesEinheit::kEinmalig:
                o.plFrequencySubDayIntervall = mlCBOKey(6);
                o.pvActiveStartTimeOfDay = zeitAusBox(f.ctlMaskEdBox(0));
                o.pvActiveEndTimeOfDay = zeitAusBox(f.ctlMaskEdBox(2));
                break;
            case TagesEinheit::kMinuten:
            case TagesEinheit::kStunden:
                o.pvActiveStartTimeOfDay = zeitAusBox(f.ctlMaskEdBox(1));
                o.pvActiveEndTimeOfDay = zeitAusBox(f.ctlMaskEdBox(2));
                o.plFrequencySubDayIntervall = mlCBOKey(6);
                break;
            default:
                break;
        }

        o.pdtActiveStartDate = tagAusPicker(f.ctlDatePicker(0));
        if (f.optEnddatum(1).Value()) {
            o.pdtActiveEndDate = keinEndDatum();
        } else if (f.optEnddatum(0).Value()) {
            o.pdtActiveEndDate = tagAusPicker(f.ctlDatePicker(1));
        }
        return 0;
    });
}
