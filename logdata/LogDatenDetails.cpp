// The details of one log entry: the cells of the browser's current row in read-only fields,
// and the step tools that move the browser's current row.
#include <QDateTime>
#include <utility>

#include "app/Required.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "logdata/LogDatenTexte.h"
#include "logdata/cLogDaten.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDetails.h"

namespace {

const QList<QPair<QString, long>>& werkzeugBilder() {
    static const QList<QPair<QString, long>> bilder{{QStringLiteral("first"), 1185},
                                                    {QStringLiteral("previous"), 1183},
                                                    {QStringLiteral("next"), 1184},
                                                    {QStringLiteral("last"), 1186}};
    return bilder;
}

// The field of a column, -1 for the columns the window passes over.
int feldDerSpalte(const QString& sSpalte, long lLogArt) {
    if (sSpalte == QLatin1String("Herkunft")) {
        return lLogArt != logdaten::kAuftraege ? frmLogDatenDetails::Feld::Herkunft : -1;
    }
    if (sSpalte == QLatin1String("Auftrag Kennung")) {
        return lLogArt == logdaten::kAuftraege ? frmLogDatenDetails::Feld::Herkunft : -1;
    }
    static const QStringList weitere{QStringLiteral("Mitarbeiter"), QStringLiteral("Datum/Uhrzeit"),
                                     QStringLiteral("Kategorie"),   QStringLiteral("Auftragsart"),
                                     QStringLiteral("Name"),        QStringLiteral("Text"),
                                     QStringLiteral("Zusatz")};
    const int i = static_cast<int>(weitere.indexOf(sSpalte));
    return i < 0 ? -1 : i + frmLogDatenDetails::Feld::Mitarbeiter;
}

// A cell as the browser shows it: dates the German way, the rest as it stands.
QString zellenText(const QString& sSpalte, const QVariant& wert) {
    if (wert.isNull()) {
        return {};
    }
    QDateTime dt;
    if (wert.typeId() == QMetaType::QDateTime) {
        dt = wert.toDateTime();
    } else if (sSpalte == QLatin1String("Datum/Uhrzeit")) {
        dt = QDateTime::fromString(wert.toString(), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    }
    if (dt.isValid()) {
        return dt.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
    }
    return wert.toString();
}

}  // namespace

void cLogDaten::mShowLogDatenDetails() {
    ErrorExit ex(QStringLiteral("mShowLogDatenDetails"), kKlasse);
    try {
        if (!moFrmLogDaten) {
            return;
        }
        if (!moFrmLogDatenDetails) {
            moFrmLogDatenDetails = std::make_shared<frmLogDatenDetails>(
                required(services().windows).create(frmLogDatenDetails::declaration()));
            frmLogDatenDetails& neu = *moFrmLogDatenDetails;
            neu.evSchliessen = mLeben.guard([this] { moFrmLogDatenDetails_evSchliessen(); });
            neu.evNavigation = mLeben.guard(
                [this](const QString& sToolName) { moFrmLogDatenDetails_evNavigation(sToolName); });
            neu.window().setCaption(moFrmLogDaten->window().Caption() +
                                    QStringLiteral(" - Details"));
        }
        frmLogDatenDetails& frm = *moFrmLogDatenDetails;
        if (mlLogArt == logdaten::kAuftraege) {
            frm.txtDetails(frmLogDatenDetails::Feld::Herkunft)
                .setCaption(QStringLiteral("Job Kennung"));
        }
        mLogDetailsErmitteln();

        CoreTexteClass& texte = required(services().coreTexte);
        if (auto* oBar = dynamic_cast<PictureTarget*>(&frm.tbrMain())) {
            texte.GetBilder(*oBar, werkzeugBilder());
        } else {
            texte.GetBilder(frm.window(), werkzeugBilder());
        }
        texte.SetFormIcon(frm.window(), kFensterSymbol);
        // The close box releases the member while the window is on show; this copy keeps the
        // window alive until the modal showing has returned.
        const std::shared_ptr<frmLogDatenDetails> oFenster = moFrmLogDatenDetails;
        oFenster->window().Show(true);
        if (auto oOffen = std::exchange(moFrmLogDatenDetails, nullptr)) {
            oOffen->window().Unload();
        }
    } catch (...) {
        ex.fail();
    }
}

void cLogDaten::mLogDetailsErmitteln() {
    ErrorExit ex(QStringLiteral("mLogDetailsErmitteln"), kKlasse);
    try {
        mlAktZeile = 0;
        if (!moFrmLogDaten || !moFrmLogDatenDetails) {
            return;
        }
        const ISelectionObject& auswahl = moFrmLogDaten->ctlLogDaten().Auswahl();
        const long lZeile = auswahl.Row();
        const long lZeilen = auswahl.RowCount();
        if (lZeile < 1 || lZeilen < 2) {
            return;
        }
        // The cells first: a row that can't be read leaves the fields as they were.
        const auto spalten = auswahl.Item(static_cast<int>(lZeile));
        mlAktZeile = lZeile;
        frmLogDatenDetails& frm = *moFrmLogDatenDetails;
        for (const auto& [sSpalte, wert] : spalten) {
            const int iFeld = feldDerSpalte(sSpalte, mlLogArt);
            if (iFeld >= 0) {
                frm.txtDetails(iFeld).setText(zellenText(sSpalte, wert));
            }
        }
        if (ITool* oAktVon =
                frm.tbrMain().Tool(frmLogDatenDetails::kBand, frmLogDatenDetails::kToolAktVon)) {
            oAktVon->setCaption(QString::number(mlAktZeile) + QStringLiteral("/") +
                                QString::number(lZeilen - 1));
        }
        mSetNavTools(mlAktZeile, lZeilen - 1, &frm.tbrMain());
    } catch (...) {
        mlAktZeile = 0;
        ex.fail();
    }
}

void cLogDaten::mLogDetailNav(const QString& sTool) {
    ErrorExit ex(QStringLiteral("mLogDetailNav"), kKlasse);
    try {
        if (!moFrmLogDaten || !moFrmLogDatenDetails) {
            return;
        }
        ISelectionObject& auswahl = moFrmLogDaten->ctlLogDaten().Auswahl();
        const long n = auswahl.RowCount() - 1;
        long lNeu = 0;
        if (sTool == QLatin1String("first")) {
            if (mlAktZeile > 1) {
                lNeu = 1;
            }
        } else if (sTool == QLatin1String("previous")) {
            if (mlAktZeile > 1) {
                lNeu = mlAktZeile - 1;
            }
        } else if (sTool == QLatin1String("next")) {
            if (mlAktZeile < n) {
                lNeu = mlAktZeile + 1;
            }
        } else if (sTool == QLatin1String("last")) {
            if (mlAktZeile < n) {
                lNeu = n;
            }
        }
        if (lNeu == 0) {
            mlMsgBox(QStringLiteral("Keine weiteren Einträge vorhanden."), MsgStyle::Information,
                     moFrmLogDatenDetails->window().Caption());
            return;
        }
        if (mlAktZeile >= 1) {
            auswahl.SetSelected(static_cast<int>(mlAktZeile), false);
        }
        auswahl.SetSelected(static_cast<int>(lNeu), true);
        auswahl.setRow(static_cast<int>(lNeu));
        mLogDetailsErmitteln();
    } catch (...) {
        ex.fail();
    }
}

void cLogDaten::moFrmLogDatenDetails_evNavigation(const QString& sToolName) {
    mLogDetailNav(sToolName);
}

void cLogDaten::moFrmLogDatenDetails_evSchliessen() {
    withErrorExit(QStringLiteral("moFrmLogDatenDetails_evSchliessen"), kKlasse, 0,
                  [this](ErrorExit&) {
                      if (auto oFenster = std::exchange(moFrmLogDatenDetails, nullptr)) {
                          oFenster->window().Unload();
                      }
                      return 0;
                  });
}
