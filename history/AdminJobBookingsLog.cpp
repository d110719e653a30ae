// A bookings import's log: the question whether to show its status or its bookings, and the
// suite's viewer that shows it.
#include <QFile>
#include <QFileInfo>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/DatabaseFiles.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "history/BookingsLogReader.h"
#include "ui/Grid.h"
#include "ui/windows/frmBuchLog.h"
#include "ui/windows/frmBuchLogAbfrage.h"

namespace {

constexpr long kDateiNichtGefunden = 53;
constexpr int kNameSpalte = 0;

const QString kFrage =
    QStringLiteral("Bitte wählen Sie aus, welche Protokolldaten angezeigt werden sollen.") +
    QStringLiteral("\r\n\r\n") + QStringLiteral("<b><Status></b>") + QStringLiteral("\t") +
    QStringLiteral("- Status/Fehlerprotokoll") + QStringLiteral("\r\n") +
    QStringLiteral("<b><Buchungen></b>") + QStringLiteral("\t") +
    QStringLiteral("- Importierte Buchungen");

}  // namespace

void cAdminJob::mOpenLogFileBu() {
    ErrorExit ex(QStringLiteral("mOpenLogFileBu"), kKlasse);
    try {
        const IGrid& grid = required(moGridBuLog);
        const QString sDatei = joinPath(required(mofrmBuLog).txtTextBox().Text(),
                                        grid.TextMatrix(grid.Row(), kNameSpalte));
        long lWjId = 0;
        {
            auto oTL = neuesRecordset(ex);
            oTL->Connect();
            // Without any fiscal year the viewer is told none (0).
            if (oTL->OpenQuery(QStringLiteral("select top 1 * from person_wirtschaftsjahr"), 0) >=
                1) {
                lWjId = oTL->ReadLong(QStringLiteral("WJ_Id"));
            }
            oTL->Close();
            oTL->Disconnect();
        }
        msGetJobName(mlJobIdListe);
        auto oViewer =
            ex.create(services().newBookingLogViewer, QStringLiteral("BookingLogViewer.dll"),
                      QStringLiteral("Set oViewer = New BookingLogViewer"));
        oViewer->SetWirtschaftsjahr(lWjId);
        oViewer->SetMitarbeiter(mlAuftragMitarbeiter);
        oViewer->SetModus(0);
        oViewer->SetDateiname(sDatei.left(sDatei.size() - 3) + QStringLiteral("mta"));
        if (mbBuchProt(sDatei)) {
            oViewer->ShowBuchungen();
        } else {
            oViewer->ShowStatus();
        }
    } catch (...) {
        ex.fail();
    }
}

bool cAdminJob::mbBuchProt(const QString& sDatei) {
    ErrorExit ex(QStringLiteral("mbBuchProt"), kKlasse);
    try {
        bool bBuchungen = false;
        {
            DatabaseFiles::refuse(sDatei);
            QFile datei(sDatei);
            // Only a plain file: a pipe of that name would block the opening, a link to
            // itself cannot be opened at all.
            if (!QFileInfo(sDatei).isFile() || !datei.open(QIODevice::ReadOnly)) {
                throw RaisedError(kDateiNichtGefunden, QStringLiteral("Datei nicht gefunden"));
            }
            bBuchungen = bookingsLogHasBookings(datei);
        }
        if (!bBuchungen) {
            return false;
        }
        mofrmBuchLogAbfrage = std::make_shared<frmBuchLogAbfrage>(
            required(services().windows).create(frmBuchLogAbfrage::declaration()));
        frmBuchLogAbfrage& frm = *mofrmBuchLogAbfrage;
        required(services().coreTexte).SetFormIcon(frm.window(), kFensterSymbol);
        frm.ctlBuchunglog().setCaption(kFrage);
        frm.window().Show(true);
        const bool bErgebnis = frm.pbBuchProtokoll();
        frm.window().Unload();
        mofrmBuchLogAbfrage.reset();
        return bErgebnis;
    } catch (...) {
        if (mofrmBuchLogAbfrage) {
            mofrmBuchLogAbfrage->window().Unload();
            mofrmBuchLogAbfrage.reset();
        }
        ex.fail();
    }
    return false;
}
