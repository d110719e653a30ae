// The schedule dialog's checks before OK, and taking its values into the stored row.
#include <QDate>

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleRow.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmZeitplan.h"

namespace {

// What the classic runtime counts as numeric, for the characters a time box can hold.
bool istNumerisch(const QString& sText) {
    bool bOk = false;
    sText.trimmed().toDouble(&bOk);
    return bOk;
}

bool istZiffer(const QString& sZeichen) {
    return sZeichen.size() == 1 && sZeichen.at(0).isDigit();
}

// The first digit of the minutes: at most 6.
bool minutenAnfangGueltig(const QString& sMinuten) {
    return !sMinuten.isEmpty() && sMinuten.at(0) <= QLatin1Char('6');
}

}  // namespace

QString cAdminJob::msCheckValuesFRMZeitplan() {
    return withErrorExit(
        QStringLiteral("msCheckValuesFRMZeitplan"), kKlasse, QString(), [this](ErrorExit&) {
            frmZeitplan& frm = required(mofrmZeitplanEigenschaften);
            if (frm.txtTextBox(frmZeitplan::Txt::Name).Text().isEmpty()) {
                frm.txtTextBox(frmZeitplan::Txt::Name).SetFocus();
                return QStringLiteral("Bitte geben Sie einen Namen für den Zeitplan an.");
            }
            if (frm.optOption(frmZeitplan::Opt::Einmal).Value()) {
                const std::optional<QDate> dtDatum = frm.ctlDatePicker().Value();
                if (!dtDatum || !dtDatum->isValid() || *dtDatum == QDate(9999, 12, 31)) {
                    frm.ctlDatePicker().SetFocus();
                    return QStringLiteral("Bitte geben Sie ein korrektes Datum ein.");
                }
                QString sZeit = frm.ctlMaskEdBox().Text();
                if (!mbCheckValidTime(sZeit)) {
                    frm.ctlMaskEdBox().SetFocus();
                    return QStringLiteral("Bitte geben Sie eine korrekte Zeit ein.");
                }
            }
            return QString();
        });
}

// Deliberately loose: hours up to 29 and minutes up to 69 pass; the seconds' first digit is
// never looked at, the minutes' is looked at twice.
bool cAdminJob::mbCheckValidTime(QString& sZeit) {
    return withErrorExit(QStringLiteral("mbCheckValidTime"), kKlasse, false, [&](ErrorExit&) {
        const QStringList teile = sZeit.split(QLatin1Char(':'));
        if (teile.size() < 3) {
            throw RaisedError(9, QStringLiteral("Index außerhalb des gültigen Bereichs"));
        }
        const QString& sStunden = teile.at(0);
        const QString& sMinuten = teile.at(1);
        const QString& sSekunden = teile.at(2);

        const QString sErstes = sStunden.left(1);
        const bool bStunden = (istNumerisch(sStunden) ||
                               (sErstes == QLatin1String("_") && istZiffer(sStunden.mid(1, 1)))) &&
                              (sErstes == QLatin1String("_") || sErstes == QLatin1String("0") ||
                               sErstes == QLatin1String("1") || sErstes == QLatin1String("2"));
        const bool bMinuten = istNumerisch(sMinuten) && minutenAnfangGueltig(sMinuten);
        const bool bSekunden = istNumerisch(sSekunden) && minutenAnfangGueltig(sMinuten);
        return bStunden && bMinuten && bSekunden;
    });
}

bool cAdminJob::mZeitplanEigenschaftenUebernehmen() {
    return withErrorExit(
        QStringLiteral("mZeitplanEigenschaftenUebernehmen"), kKlasse, false, [this](ErrorExit&) {
            frmZeitplan& frm = required(mofrmZeitplanEigenschaften);
            cSchedule& o = required(moSchedule);
            o.psName = frm.txtTextBox(frmZeitplan::Txt::Name).Text();
            o.pbyAktiviert = alsByte(frm.chkCheckBox().Value());
            if (frm.optOption(frmZeitplan::Opt::Einmal).Value()) {
                mInitZeitplan();
                o.plFrequencyType = Haeufigkeit::kEinmal;
                const QDateTime dtDatum(frm.ctlDatePicker().Value().value_or(QDate()), QTime(0, 0));
                o.pdtActiveStartDate = dtDatum;
                o.pdtActiveEndDate = dtDatum;
                o.plFrequencySubDay = TagesEinheit::kEinmalig;
                const QString sZiffern = frm.ctlMaskEdBox().Ziffern();
                if (!sZiffern.isEmpty()) {
                    o.pvActiveStartTimeOfDay = sZiffern + QStringLiteral("00");
                }
            }
            // A row that could not be written (e.g. the database locked by another writer)
            // keeps the schedule and its dialog, so that OK can be pressed again.
            if (mlJobId > 0 && mlAuftragZeilenversion != RowConflict::kNichtGelesen &&
                !mbAuftragVorhanden(mlJobId)) {
                // A schedule without its job would be lost with the next save of the job.
                mlMsgBox(QStringLiteral("Der Auftrag „") + msJobName +
                             QStringLiteral("“ wurde inzwischen an einem anderen Arbeitsplatz "
                                            "gelöscht. Der Zeitplan kann nicht gespeichert "
                                            "werden; schließen Sie diesen Dialog und speichern "
                                            "Sie den Auftrag, um ihn neu anzulegen."),
                         MsgStyle::Information);
                return false;
            }
            const RowConflict::Speicherung ergebnis =
                mZeitplanSpeichern(mlZeitplanId, mlJobId, o, mlZeitplanZeilenversion);
            if (ergebnis == RowConflict::Speicherung::Verworfen) {
                // The dialog shows the stored schedule, as on opening.
                mbLadeZeitplan = true;
                mShowZeitplanEigenschaften(mlZeitplanId);
                mbLadeZeitplan = false;
                return false;
            }
            if (ergebnis != RowConflict::Speicherung::Gespeichert) {
                return false;
            }
            moSchedule.reset();
            mUpdateLetztAenderung();
            if (mofrmEigenschaften) {
                mofrmEigenschaften->lblLetzteAenderung().setCaption(
                    msGetLetzteAenderungText(clockNow(), 0));
            }
            return true;
        });
}
