// The search of the log data browser: the words and the period become a condition of the
// browser's statement; the browser shows the hits with the words marked.
#include "app/Required.h"
#include "common/ErrorExit.h"
#include "logdata/LogDatenSuche.h"
#include "logdata/LogDatenTexte.h"
#include "logdata/cLogDaten.h"
#include "ui/windows/frmLogDaten.h"

void cLogDaten::moFrmLogDaten_evSuchen() {
    ErrorExit ex(QStringLiteral("moFrmLogDaten_evSuchen"), kKlasse);
    try {
        if (!moFrmLogDaten) {
            return;
        }
        frmLogDaten& frm = *moFrmLogDaten;
        const std::optional<QDate> dtVon = logsuche::tag(frm.txtSuchenVon().Text());
        const std::optional<QDate> dtBis = logsuche::tag(frm.txtSuchenBis().Text());
        // A day that is none searches nothing: the list stays as it is and the line says why.
        if (!dtVon || !dtBis) {
            frm.lblSuchTreffer().setCaption(logsuche::kTagUngueltig);
            return;
        }
        const QStringList woerter = logsuche::woerter(frm.txtSuchen().Text());
        const QString sBedingung = logsuche::msBedingung(woerter, *dtVon, *dtBis);
        IBrowser& browser = frm.ctlLogDaten();
        const QString sAbfrage = logdaten::msAbfrage(mlLogArt, mlLogJobId) + sBedingung;
        if (sAbfrage == browser.Abfrage()) {
            frm.lblSuchTreffer().setCaption(
                sBedingung.isEmpty() ? QString()
                                     : logsuche::msTreffer(browser.Auswahl().RecordCount()));
            return;
        }
        browser.setSuchWoerter(woerter);
        browser.setAbfrage(sAbfrage);
        browser.Refresh(false);
        const int lAnzahl = browser.Auswahl().RecordCount();
        if (lAnzahl >= 1) {
            browser.Auswahl().setRow(1);
        }
        frm.lblSuchTreffer().setCaption(sBedingung.isEmpty() ? QString()
                                                             : logsuche::msTreffer(lAnzahl));
    } catch (...) {
        ex.fail();
    }
}

void cLogDaten::moFrmLogDaten_evSucheBeenden() {
    ErrorExit ex(QStringLiteral("moFrmLogDaten_evSucheBeenden"), kKlasse);
    try {
        if (!moFrmLogDaten) {
            return;
        }
        frmLogDaten& frm = *moFrmLogDaten;
        if (frm.txtSuchen().Text().isEmpty() && frm.txtSuchenVon().Text().isEmpty() &&
            frm.txtSuchenBis().Text().isEmpty()) {
            return;
        }
        frm.txtSuchen().setText(QString());
        frm.txtSuchenVon().setText(QString());
        frm.txtSuchenBis().setText(QString());
        moFrmLogDaten_evSuchen();
    } catch (...) {
        ex.fail();
    }
}
