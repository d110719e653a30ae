// The log data browser: its statement, title and columns, showing it and ending it.
#include <utility>

#include "app/Required.h"
#include "common/ErrorExit.h"
#include "logdata/LogDatenTexte.h"
#include "logdata/cLogDaten.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDetails.h"

namespace {

constexpr int kTextTitelKopf = 1001;

// Shown only where a kind isn't its own: the service's source in the job log and the job's
// identifier in the service log.
QStringList versteckteSpalten(long lLogArt) {
    QStringList spalten{QStringLiteral("Id"), QStringLiteral("AutoJobId"), QStringLiteral("Typ")};
    if (lLogArt == logdaten::kDienst) {
        spalten << QStringLiteral("Auftrag Kennung");
    } else if (lLogArt == logdaten::kAuftraege) {
        spalten << QStringLiteral("Herkunft");
    }
    return spalten;
}

void spaltenKennzeichnen(IBrowser& browser, const QStringList& versteckt) {
    for (const QString& sSpalte : versteckt) {
        if (BrowserColumn* oSpalte = browser.Spalte(sSpalte)) {
            oSpalte->SpalteFlagA = true;
        }
    }
    for (const QString& sSpalte : browser.SpaltenNamen()) {
        if (BrowserColumn* oSpalte = browser.Spalte(sSpalte)) {
            oSpalte->SpalteFlagB = true;
        }
    }
}

}  // namespace

void cLogDaten::fLogDatenShow(long lLogArt, long lJobId) {
    ErrorExit ex(QStringLiteral("fLogDatenShow"), kKlasse);
    try {
        mlLogArt = lLogArt;
        mlLogJobId = lJobId;
        moFrmLogDaten = std::make_shared<frmLogDaten>(
            required(services().windows).create(frmLogDaten::declaration()));
        frmLogDaten& frm = *moFrmLogDaten;
        frm.evSchliessen = mLeben.guard([this] { moFrmLogDaten_evSchliessen(); });
        frm.evShowDetail = mLeben.guard([this] { moFrmLogDaten_evShowDetail(); });
        frm.evSuchen = mLeben.guard([this] { moFrmLogDaten_evSuchen(); });
        frm.evSucheBeenden = mLeben.guard([this] { moFrmLogDaten_evSucheBeenden(); });

        CoreTexteClass& texte = required(services().coreTexte);
        const QString sTitel =
            logdaten::msTitel(texte.GetText(kTextTitelKopf), lLogArt, lJobId, msJobNameLog);
        frm.window().setCaption(sTitel);

        IBrowser& browser = frm.ctlLogDaten();
        if (ITool* oTool =
                browser.Tools().Add(frmLogDaten::kToolDetails, 0, frmLogDaten::kToolDetails, 0)) {
            oTool->setToolTip(QStringLiteral("Details anzeigen"));
        }
        browser.setTitel(sTitel);
        browser.setSchluessel(logdaten::msSchluessel(lLogArt));
        browser.setAbfrage(logdaten::msAbfrage(lLogArt, lJobId));
        browser.setMitarbeiterId(mlLogKontext);
        browser.setMitarbeiterName(msLogKontext);

        // The browser learns its columns at the first load: the flags go on the names before
        // it and again on every column it brought.
        const QStringList versteckt = versteckteSpalten(lLogArt);
        spaltenKennzeichnen(browser, versteckt);
        browser.Load();
        spaltenKennzeichnen(browser, versteckt);
        if (browser.Auswahl().RecordCount() >= 1) {
            browser.Auswahl().setRow(1);
        }

        texte.SetFormIcon(frm.window(), kFensterSymbol);
        // The close box releases the member while the window is on show; this copy keeps the
        // window alive until the modal showing has returned.
        const std::shared_ptr<frmLogDaten> oFenster = moFrmLogDaten;
        oFenster->window().Show(true);
        mLogDatenShowEnde();
    } catch (...) {
        ex.fail();
    }
}

void cLogDaten::mLogDatenShowEnde() {
    withErrorExit(QStringLiteral("mLogDatenShowEnde"), kKlasse, 0, [this](ErrorExit&) {
        mlLogArt = 0;
        // Each window leaves its member before it unloads: its unload comes back here.
        if (auto oDetails = std::exchange(moFrmLogDatenDetails, nullptr)) {
            oDetails->window().Unload();
        }
        if (auto oBrowser = std::exchange(moFrmLogDaten, nullptr)) {
            oBrowser->window().Unload();
        }
        return 0;
    });
}

void cLogDaten::moFrmLogDaten_evSchliessen() {
    mLogDatenShowEnde();
}

void cLogDaten::moFrmLogDaten_evShowDetail() {
    mShowLogDatenDetails();
}
