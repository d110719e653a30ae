// The deletion of log data by period, for one job, one job type or all of them.
#include <QDate>
#include <utility>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "common/ErrorExit.h"
#include "logdata/LogDatenTexte.h"
#include "logdata/cLogDaten.h"
#include "ui/windows/frmLogDatenDel.h"

namespace {

constexpr int kTextTitelKopf = 1001;
// Yes and No with the question's picture, as the window has always asked.
constexpr long kStilFrage = 68;

using Knopf = frmLogDatenDel::Aktion;

const QString kKurzesDatum = QStringLiteral("dd.MM.yyyy");

// A date that isn't there reads as the zero date, which sets no bound.
bool hatDatum(const QDateTime& dt) {
    return dt.isValid() && dt.date() != zeroDate().date();
}

}  // namespace

void cLogDaten::mLogdatenDeleteAuswahl(long lLogArt, long& lJobId) {
    ErrorExit ex(QStringLiteral("mLogdatenDeleteAuswahl"), kKlasse);
    try {
        mlLoeschJobId = lJobId;
        moFrmLogDatenDel = std::make_shared<frmLogDatenDel>(
            required(services().windows).create(frmLogDatenDel::declaration()));
        frmLogDatenDel& frm = *moFrmLogDatenDel;
        frm.evAktion = mLeben.guard([this](int Index) { moFrmLogDatenDel_evAktion(Index); });

        CoreTexteClass& texte = required(services().coreTexte);
        frm.window().setCaption(logdaten::msLoeschTitel(texte.GetText(kTextTitelKopf), lLogArt));
        if (mlLoeschJobId < 1) {
            frm.lblAuftragName().setVisible(false);
            if (evInitCBOAuftragsart) {
                auto handler = evInitCBOAuftragsart;
                handler(frm.cboAuftragsart(), 0, true);
            }
        } else {
            frm.cboAuftragsart().setVisible(false);
            frm.cboAuftragsart().setEnabled(false);
            frm.lblAuftragName().setCaption(QStringLiteral("Logdaten für Auftrag '") +
                                            msJobNameLog + QStringLiteral("' löschen!"));
        }
        const QDate heute = clockNow().date();
        frm.ctlDatePicker(frmLogDatenDel::Datum::Von).setValue(heute);
        frm.ctlDatePicker(frmLogDatenDel::Datum::Bis).setValue(heute);
        mlLoeschArt = lLogArt;

        texte.SetFormIcon(frm.window(), kFensterSymbol);
        // The buttons release the member while the window is on show; this copy keeps the
        // window alive until the modal showing has returned.
        const std::shared_ptr<frmLogDatenDel> oFenster = moFrmLogDatenDel;
        oFenster->window().Show(true);
        if (auto oOffen = std::exchange(moFrmLogDatenDel, nullptr)) {
            oOffen->window().Unload();
        }
        mlLoeschJobId = 0;
    } catch (...) {
        mlLoeschJobId = 0;
        ex.fail();
    }
}

void cLogDaten::moFrmLogDatenDel_evAktion(int Index) {
    withErrorExit(QStringLiteral("moFrmLogDatenDel_evAktion"), kKlasse, 0, [&](ErrorExit&) {
        bool bClose = true;
        if (Index == Knopf::Ok) {
            bClose = mbLogDatenLoeschen();
        }
        if (bClose) {
            if (auto oFenster = std::exchange(moFrmLogDatenDel, nullptr)) {
                oFenster->window().Unload();
            }
        }
        return 0;
    });
}

bool cLogDaten::mbLogDatenLoeschen() {
    ErrorExit ex(QStringLiteral("mbLogDatenLoeschen"), kKlasse);
    try {
        if (!moFrmLogDatenDel) {
            return false;
        }
        frmLogDatenDel& frm = *moFrmLogDatenDel;
        const QString sTitel = frm.window().Caption();
        const std::optional<QDate> von = frm.ctlDatePicker(frmLogDatenDel::Datum::Von).Value();
        const std::optional<QDate> bis = frm.ctlDatePicker(frmLogDatenDel::Datum::Bis).Value();
        // A field left empty is no period: it counts as an invalid entry, like a Von after
        // the Bis, so that nothing is deleted without an end on either side.
        if (!von || !bis || !von->isValid() || !bis->isValid() || *von > *bis) {
            mlMsgBox(QStringLiteral("Von/Bis Datum ungültig. Bitte überprüfen Sie die Eingaben."),
                     MsgStyle::Warning, sTitel);
            return false;
        }
        // The fields hold dates only; the start of the day is the Von as a date without time.
        const QDateTime dtVon = von->startOfDay();
        const QDateTime dtBis = bis->startOfDay();
        const QString sVon = dtVon.toString(kKurzesDatum);
        const QString sBis = dtBis.toString(kKurzesDatum);
        QString sZeitraum = QStringLiteral("vom ") + sVon;
        if (sVon != sBis) {
            sZeitraum += QStringLiteral(" bis ") + sBis;
        }

        QString sFrage = QStringLiteral("Wollen Sie die Logdaten ");
        long lJobArt = 0;
        if (mlLoeschJobId != 0) {
            sFrage += QStringLiteral(" für den Auftrag '") + msJobNameLog + QStringLiteral("' ") +
                      sZeitraum;
        } else {
            IComboBox& cbo = frm.cboAuftragsart();
            lJobArt = cbo.Key() < 0 ? 0 : cbo.Key();
            if (lJobArt != 0) {
                sFrage += QStringLiteral("der Auftragsart '") + QStringLiteral(" ") +
                          cbo.ItemText() + QStringLiteral("' ") + sZeitraum;
            } else {
                sFrage += QStringLiteral("aller Auftragsdaten ") + sZeitraum;
            }
        }
        sFrage += QStringLiteral(" löschen?");

        if (mlMsgBox(sFrage, kStilFrage, sTitel) == MsgAnswer::Yes) {
            long lJobId = mlLoeschJobId;
            // A statement that failed (e.g. the database locked by another writer) has been
            // reported; the window stays with its entries for another try.
            if (!mLogDatenDelete(lJobArt, lJobId, mlLoeschArt, dtVon, dtBis, true)) {
                return false;
            }
        }
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}

bool cLogDaten::mLogDatenDelete(long lJobArt, long lJobId, long lLogArt, const QDateTime& dtVon,
                                const QDateTime& dtBis, bool bMeldung) {
    ErrorExit ex(QStringLiteral("mLogDatenDelete"), kKlasse);
    try {
        QString sVon;
        QString sBis;
        {
            auto oMitarbeiter =
                ex.create(services().newMitarbeiter, QStringLiteral("hstaff.dll"),
                          QStringLiteral("Set oMitarbeiter = New hstaff.OIMitarbeiterClass"));
            if (hatDatum(dtVon)) {
                sVon = oMitarbeiter->FormatSqlDate(dtVon, 0);
            }
            if (hatDatum(dtBis)) {
                // The last day counts in full.
                sBis = oMitarbeiter->FormatSqlDate(dtBis, 0).replace(QStringLiteral("00:00:00"),
                                                                     QStringLiteral("23:59:59"));
            }
        }
        const QString sWhere = logdaten::msLoeschBedingung(sVon, sBis, lLogArt, mlLoeschArt,
                                                           lJobArt, lJobId, mlLoeschJobId);
        const QString sSql = QStringLiteral("DELETE FROM ") +
                             QStringLiteral("SYS_JobAgentLogDaten") + QStringLiteral(" WHERE ") +
                             sWhere;

        long lAnzahl = 0;
        auto oTL = neuesRecordset(ex);
        // A connection that fails is reported, nothing is deleted, and the count tells so.
        const bool bVerbunden =
            withErrorExit(QStringLiteral("mLogDatenDelete"), kKlasse, false, [&](ErrorExit&) {
                oTL->Connect();
                return true;
            });
        if (bVerbunden) {
            lAnzahl = oTL->Execute(sSql);
            oTL->Disconnect();
        }
        oTL.reset();

        if (bMeldung && moMeldungen) {
            const QString sTitel =
                moFrmLogDatenDel ? moFrmLogDatenDel->window().Caption() : QString();
            mlMsgBox(logdaten::msLoeschErgebnis(lAnzahl), MsgStyle::Information, sTitel);
        }
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}
