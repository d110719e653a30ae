// The document type panel of the direct import (which document types it takes) and the
// dealer data panel (what is read from the dealer system).
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "ui/Grid.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

constexpr int kSpalteBezeichnung = 0;
constexpr int kSpalteAuswahl = 1;
constexpr int kBreiteBezeichnung = 3600;
constexpr int kBreiteAuswahl = 750;
// Debtors only: no bookings, so no bookings directory.
constexpr long kNivoraNurDebitoren = 3;
const QString kAlleBelegarten = QStringLiteral("0");
const QChar kListenTrenner = QLatin1Char(',');

}  // namespace

void cAdminJob::mInitGRD_Belegarten() {
    ErrorExit ex(QStringLiteral("mInitGRD_Belegarten"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        IGrid& grd = mofrmEigenschaften->grdBeleg();
        grd.setFormatString(QStringLiteral("<Belegart|<Auswählen"));
        grd.setRows(1);
        grd.setCols(2);
        grd.setColWidth(kSpalteBezeichnung, kBreiteBezeichnung);
        grd.setColWidth(kSpalteAuswahl, kBreiteAuswahl);
        grd.setColBoolean(kSpalteAuswahl, true);
        grd.setEditable(true);

        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(
                QStringLiteral(
                    "SELECT Nummer, Bezeichnung FROM XB_Belegart_iKesto ORDER BY Nummer"),
                2) >= 1) {
            bool bDatensatz = true;
            while (bDatensatz) {
                grd.AddItem(QString());
                const int lZeile = grd.Rows() - 1;
                grd.setTextMatrix(lZeile, kSpalteBezeichnung,
                                  oTL->ReadText(QStringLiteral("Bezeichnung")));
                grd.setRowData(lZeile, QVariant::fromValue<qlonglong>(
                                           oTL->ReadLong(QStringLiteral("Nummer"))));
                bDatensatz = oTL->Move(CRecordset::MoveNext);
            }
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mFillBelegGrid(const QString& sBelegarten) {
    ErrorExit ex(QStringLiteral("mFillBelegGrid"), kKlasse);
    try {
        mlBelegeAnzahl = 0;
        IGrid& grd = required(mofrmEigenschaften).grdBeleg();
        const bool bAlle = sBelegarten.isEmpty() || sBelegarten == kAlleBelegarten;
        QStringList aNummern = sBelegarten.split(kListenTrenner);
        for (QString& sNummer : aNummern) {
            sNummer = sNummer.trimmed();
        }
        for (int lZeile = 1; lZeile < grd.Rows(); ++lZeile) {
            const bool bGewaehlt =
                bAlle || aNummern.contains(QString::number(grd.RowData(lZeile).toLongLong()));
            grd.setCellChecked(lZeile, kSpalteAuswahl, bGewaehlt);
            if (bGewaehlt) {
                ++mlBelegeAnzahl;
            }
        }
    } catch (...) {
        ex.fail();
    }
}

QString cAdminJob::msGetBelegarten() {
    return withErrorExit(QStringLiteral("msGetBelegarten"), kKlasse, QString(), [this](ErrorExit&) {
        IGrid& grd = required(mofrmEigenschaften).grdBeleg();
        QString sListe;
        for (int lZeile = 1; lZeile < grd.Rows(); ++lZeile) {
            if (grd.CellChecked(lZeile, kSpalteAuswahl)) {
                if (!sListe.isEmpty()) {
                    sListe += kListenTrenner;
                }
                sListe += QString::number(grd.RowData(lZeile).toLongLong());
            }
        }
        return sListe;
    });
}

void cAdminJob::mofrmEigenschaften_evGrdBelegAfterEdit(int lRow) {
    ErrorExit ex(QStringLiteral("mofrmEigenschaften_evGrdBelegAfterEdit"), kKlasse);
    try {
        IGrid& grd = required(mofrmEigenschaften).grdBeleg();
        if (grd.CellChecked(lRow, kSpalteAuswahl)) {
            ++mlBelegeAnzahl;
        } else if (mlBelegeAnzahl == 1) {
            // At least one document type stays chosen.
            grd.setCellChecked(lRow, kSpalteAuswahl, true);
        } else if (mlBelegeAnzahl > 1) {
            --mlBelegeAnzahl;
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mInitCBO_NivoraDaten(long& lKey) {
    ErrorExit ex(QStringLiteral("mInitCBO_NivoraDaten"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        IComboBox& cbo = mofrmEigenschaften->cboComboBox(frmEigenschaften::Cbo::Nivora);
        cbo.setVisible(true);
        cbo.Clear();
        cbo.AddItem(1, QStringLiteral("Buchungen und Debitoren"));
        cbo.AddItem(2, QStringLiteral("Buchungen"));
        cbo.AddItem(3, QStringLiteral("Debitoren"));
        if (lKey < 1) {
            lKey = 1;
        }
        cbo.setKey(lKey);
        mNivoraDaten(lKey);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mNivoraDaten(long lKey) {
    ErrorExit ex(QStringLiteral("mNivoraDaten"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        frmEigenschaften& frm = *mofrmEigenschaften;
        ITextBox& txtVerzeichnis = frm.txtTextBox(frmEigenschaften::Txt::Logfiles);
        if (lKey != kNivoraNurDebitoren) {
            txtVerzeichnis.setEnabled(true);
            if (txtVerzeichnis.Text().isEmpty() && !msNivoraTempPfad.isEmpty()) {
                txtVerzeichnis.setText(msNivoraTempPfad);
            } else {
                msNivoraTempPfad = txtVerzeichnis.Text();
            }
            frm.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(true);
        } else {
            txtVerzeichnis.setEnabled(false);
            msNivoraTempPfad = txtVerzeichnis.Text();
            txtVerzeichnis.setText(QString());
            frm.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(false);
        }
        if (lKey != mlNivoraDaten) {
            if (mlNivoraDaten > 0) {
                mEigenschaftenGeaendert();
            }
            mlNivoraDaten = lKey;
        }
    } catch (...) {
        ex.fail();
    }
}
