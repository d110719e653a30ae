// The job list: the browser's set-up, which job counts as selected, and the SQL condition
// for the selected jobs.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "joblist/ListTools.h"
#include "ui/Browser.h"

namespace {

constexpr int kToolTypSchalter = 0;
constexpr int kToolTypTrenner = 5;
constexpr int kModusListe = 1;
// Names shown in the delete question; beyond them ", ..." stands for the rest.
constexpr std::size_t kNamenImText = 10;

const QString kSpalteJobId = QStringLiteral("JobId");
const QString kSpalteName = QStringLiteral("Name");
const QString kSpalteAuftragsart = QStringLiteral("Auftragsart");
const QString kSpalteMandant = QStringLiteral("PSId");

}  // namespace

bool cAdminJob::mInitApplication() {
    return withErrorExit(QStringLiteral("mInitApplication"), kKlasse, false, [this](ErrorExit&) {
        IBrowser& pakete = mPakete();
        IToolList& tools = pakete.Tools();
        IToolList& menu = pakete.Menu();

        auto beide = [&](const QString& sName, const QString& sCaption, long lBild) {
            ITool* oTool = tools.Add(sName, kToolTypSchalter, sCaption, lBild);
            menu.AddTool(oTool);
            return oTool;
        };
        auto trenner = [&] { menu.AddTool(tools.Add(QString(), kToolTypTrenner, QString(), 0)); };
        auto nurMenu = [&](const QString& sName, const QString& sCaption, long lBild) {
            menu.Add(sName, kToolTypSchalter, sCaption, lBild);
        };

        beide(ListTool::Neu, ListTool::Neu, 1091);
        beide(ListTool::Bearbeiten, ListTool::Bearbeiten, 1062);
        beide(ListTool::Loeschen, ListTool::Loeschen, 1131);
        trenner();
        beide(ListTool::Kopieren, ListTool::Kopieren, 1159);
        required(beide(ListTool::Einfuegen, ListTool::Einfuegen, 1157)).setEnabled(false);
        trenner();
        nurMenu(ListTool::AktivUmschalten, QStringLiteral("Auftrag Deaktivieren/Aktivieren"), 0);
        nurMenu(ListTool::Verlauf, QStringLiteral("Auftragsverlauf anzeigen"), 1621);
        trenner();
        nurMenu(ListTool::Ausfuehren, ListTool::Ausfuehren, 1640);

        QString sAbfrage = QStringLiteral("SELECT * FROM V_ZPK_Applications_System_AutoJob");
        if (mbFirmaKanzlei()) {
            sAbfrage +=
                QStringLiteral(" WHERE PSId = ") + QString::number(required(moProperties).plManId);
        }

        pakete.setTitel(msGetTitel());
        pakete.setSchluessel(QStringLiteral("ZPK.Applications.System.AutoJob"));
        pakete.setAbfrage(sAbfrage);
        pakete.setMitarbeiterId(required(moProperties).plMitId);
        long lMitId = 0;
        pakete.setMitarbeiterName(msMitarbeiterName(lMitId));
        pakete.setModus(kModusListe);

        mSpaltenKennzeichnen();
        return true;
    });
}

void cAdminJob::mSpaltenKennzeichnen() {
    IBrowser& pakete = mPakete();
    for (const QString& sSchluessel : {kSpalteJobId, kSpalteMandant}) {
        if (BrowserColumn* oSpalte = pakete.Spalte(sSchluessel)) {
            oSpalte->SpalteFlagA = true;
        }
    }
    mBrowserSpaltenInitialisieren();
}

void cAdminJob::mBrowserSpaltenInitialisieren() {
    ErrorExit ex(QStringLiteral("mBrowserSpaltenInitialisieren"), kKlasse);
    try {
        IBrowser& pakete = mPakete();
        for (const QString& sSpalte : pakete.SpaltenNamen()) {
            required(pakete.Spalte(sSpalte)).SpalteFlagB = true;
        }
    } catch (...) {
        ex.fail(true);
    }
}

void cAdminJob::mBrowserRefresh(bool bFlag) {
    withErrorExit(QStringLiteral("mBrowserRefresh"), kKlasse, 0, [&](ErrorExit&) {
        if (moPakete) {
            ISelectionObject& auswahl = moPakete->Auswahl();
            const int lZeile = auswahl.Row();
            moPakete->Refresh(bFlag);
            if (auswahl.RecordCount() >= 1) {
                const int lLetzte = auswahl.RowCount() - 1;
                if (lZeile >= 1 && lZeile <= lLetzte) {
                    auswahl.setRow(lZeile);
                } else if (lZeile > lLetzte) {
                    auswahl.setRow(lLetzte);
                } else {
                    auswahl.setRow(1);
                }
            }
        }
        mbBrowserSelectItem(mlJobId);
        return 0;
    });
}

bool cAdminJob::mbBrowserSelectItem(long lJobId) {
    ErrorExit ex(QStringLiteral("mbBrowserSelectItem"), kKlasse);
    try {
        ISelectionObject& auswahl = mPakete().Auswahl();
        if (auswahl.RecordCount() == 0) {
            return false;
        }
        if (lJobId == 0) {
            return true;
        }
        const int lZeile = auswahl.FindRow(CValues{{kSpalteJobId, QVariant::fromValue(lJobId)}});
        if (lZeile >= 1) {
            auswahl.setRow(lZeile);
            return true;
        }
        return false;
    } catch (...) {
        ex.fail(true);
    }
    return false;
}

void cAdminJob::mJobIdErmitteln(long& lId, QString& sName) {
    ErrorExit ex(QStringLiteral("mJobIdErmitteln"), kKlasse);
    try {
        mlJobZeile = 0;
        const ISelectionObject& auswahl = mPakete().Auswahl();
        if (auswahl.RowCount() < 2 || auswahl.Row() < 1 || auswahl.SelCount() < 1) {
            return;
        }
        auto oConvert = ex.create(services().newCoreConvert, QStringLiteral("hcore.dll"),
                                  QStringLiteral("Set oConvert = New hcore.CoreConvertClass"));
        maAuftragsarten.assign(static_cast<std::size_t>(auswahl.SelCount()), Auftragsart{});
        for (int i = 0; i < auswahl.SelCount(); ++i) {
            const int lZeile = auswahl.SelRow(i);
            Auftragsart& eintrag = maAuftragsarten[static_cast<std::size_t>(i)];
            for (const auto& [sSpalte, vWert] : auswahl.Item(lZeile)) {
                if (sSpalte == kSpalteJobId) {
                    eintrag.lId = oConvert->ToLong(vWert);
                }
                if (sSpalte == kSpalteName) {
                    eintrag.sName = vWert.toString();
                }
                if (sSpalte == kSpalteAuftragsart) {
                    eintrag.sArt = vWert.toString();
                }
            }
            if (lId == 0) {
                mlJobZeile = lZeile;
                lId = eintrag.lId;
                sName = eintrag.sName;
            }
        }
    } catch (...) {
        ex.fail();
    }
}

QString cAdminJob::msAuftragsartAktuell() {
    return withErrorExit(QStringLiteral("msAuftragsartAktuell"), kKlasse, QString(),
                         [this](ErrorExit&) {
                             const ISelectionObject& auswahl = mPakete().Auswahl();
                             if (auswahl.RowCount() < 2 || auswahl.Row() < 1) {
                                 return QString();
                             }
                             for (const auto& [sSpalte, vWert] : auswahl.Item(auswahl.Row())) {
                                 if (sSpalte == kSpalteAuftragsart) {
                                     return vWert.toString();
                                 }
                             }
                             return QString();
                         });
}

QString cAdminJob::msAuswahlBedingung() {
    return withErrorExit(QStringLiteral("msAuswahlBedingung"), kKlasse, QString(),
                         [this](ErrorExit&) {
                             msJobNamen.clear();
                             if (maAuftragsarten.empty()) {
                                 return QString();
                             }
                             QString sListe;
                             for (std::size_t i = 0; i < maAuftragsarten.size(); ++i) {
                                 const Auftragsart& eintrag = maAuftragsarten[i];
                                 if (i == 0) {
                                     sListe = QString::number(eintrag.lId);
                                     msJobNamen = eintrag.sName;
                                     continue;
                                 }
                                 sListe += QStringLiteral(" ,") + QString::number(eintrag.lId);
                                 if (i < kNamenImText) {
                                     msJobNamen += QStringLiteral(", ") + eintrag.sName;
                                 } else if (i == kNamenImText) {
                                     msJobNamen += QStringLiteral(", ...");
                                 }
                             }
                             if (maAuftragsarten.size() == 1) {
                                 return QStringLiteral(" = ") + sListe;
                             }
                             return QStringLiteral(" IN (") + sListe + QStringLiteral(")");
                         });
}
