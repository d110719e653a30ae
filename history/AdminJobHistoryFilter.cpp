// The filter window of the run history: period, unit and result type by job type.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "history/HistoryTexts.h"
#include "jobs/JobTypes.h"
#include "ui/windows/frmVerlaufFilter.h"

namespace {

constexpr int kTextKesto = 1236;
constexpr long kHoechsterZeitWert = 365;

using Combo = frmVerlaufFilter::Cbo;

}  // namespace

void cAdminJob::mShowFilter() {
    ErrorExit ex(QStringLiteral("mShowFilter"), kKlasse);
    try {
        mofrmFilter = std::make_shared<frmVerlaufFilter>(
            required(services().windows).create(frmVerlaufFilter::declaration()));
        // Kept alive until the modal window returns, though its buttons let go of it.
        const std::shared_ptr<frmVerlaufFilter> frm = mofrmFilter;
        frm->evFrmFilterfCMDButtonClicked =
            mLeben.guard([this](int Index) { mofrmFilter_evFrmFilterfCMDButtonClicked(Index); });
        mShowFilterEigenschaften();
        required(services().coreTexte).SetFormIcon(frm->window(), kFensterSymbol);
        frm->window().setCaption(QStringLiteral("Filter auswählen"));
        frm->window().Show(true);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mShowFilterEigenschaften() {
    withErrorExit(QStringLiteral("mShowFilterEigenschaften"), kKlasse, 0, [this](ErrorExit&) {
        mInitCBO_ZeitWert();
        mInitCBO_ZeitEinheit();
        mInitCBO_VerlaufsTyp();
        return 0;
    });
}

void cAdminJob::mInitCBO_ZeitWert() {
    withErrorExit(QStringLiteral("mInitCBO_ZeitWert"), kKlasse, 0, [this](ErrorExit&) {
        IComboBox& cbo = required(mofrmFilter).cboComboBox(Combo::ZeitWert);
        cbo.Clear();
        for (long i = 1; i <= kHoechsterZeitWert; ++i) {
            cbo.AddItem(i, QString::number(i));
        }
        cbo.setKey(required(moVerlaufFilter).lZeitWert);
        return 0;
    });
}

void cAdminJob::mInitCBO_ZeitEinheit() {
    withErrorExit(QStringLiteral("mInitCBO_ZeitEinheit"), kKlasse, 0, [this](ErrorExit&) {
        IComboBox& cbo = required(mofrmFilter).cboComboBox(Combo::ZeitEinheit);
        cbo.Clear();
        cbo.AddItem(1, QStringLiteral("Tag(e)"));
        cbo.AddItem(2, QStringLiteral("Woche(n)"));
        cbo.AddItem(3, QStringLiteral("Monat(e)"));
        cbo.AddItem(4, QStringLiteral("Jahr(e)"));
        cbo.setKey(required(moVerlaufFilter).lZeitEinheit);
        return 0;
    });
}

void cAdminJob::mInitCBO_VerlaufsTyp() {
    withErrorExit(QStringLiteral("mInitCBO_VerlaufsTyp"), kKlasse, 0, [this](ErrorExit&) {
        IComboBox& cbo = required(mofrmFilter).cboComboBox(Combo::Typ);
        cbo.Clear();
        cbo.AddItem(Erfolg::kAlle, QStringLiteral("Alle"));
        const QString sArt = msAuftragsartAktuell();
        auto ist = [&](long lDatenArt) { return sArt == msGetAuftragsart(lDatenArt); };
        auto text = [](std::uint8_t byCode) { return erfolgText(byCode, QString()); };
        const QString sKeineKestoDaten =
            QStringLiteral("keine Daten aus ") +
            required(services().coreTexte).GetText(QVariant(kTextKesto)) + QStringLiteral(".");
        if (ist(DatenArt::Buchungen) || ist(DatenArt::Kunden) || ist(DatenArt::Lieferanten)) {
            cbo.AddItem(Erfolg::kErfolgreich, text(Erfolg::kErfolgreich));
            cbo.AddItem(Erfolg::kKeineMta, text(Erfolg::kKeineMta));
            cbo.AddItem(Erfolg::kFehlerhaft, text(Erfolg::kFehlerhaft));
        } else if (ist(DatenArt::KestoDirekt)) {
            cbo.AddItem(Erfolg::kErfolgreich, text(Erfolg::kErfolgreich));
            cbo.AddItem(Erfolg::kKeineKestoDaten, sKeineKestoDaten);
            cbo.AddItem(Erfolg::kFehlerhaft, text(Erfolg::kFehlerhaft));
        } else if (ist(DatenArt::Nivora)) {
            // The item of code 5 names the merchandise system, though the grid's status of
            // the same code names the dealer system: wanted as it stands.
            cbo.AddItem(Erfolg::kErfolgreich, text(Erfolg::kErfolgreich));
            cbo.AddItem(Erfolg::kKeineNivoraDaten, sKeineKestoDaten);
            cbo.AddItem(Erfolg::kFehlerhaft, text(Erfolg::kFehlerhaft));
        } else if (ist(DatenArt::ScanDokumente)) {
            cbo.AddItem(Erfolg::kScanErfolgreich, text(Erfolg::kScanErfolgreich));
            cbo.AddItem(Erfolg::kScanFehlerhaft, text(Erfolg::kScanFehlerhaft));
        } else if (ist(DatenArt::Verschlagwortung)) {
            cbo.AddItem(Erfolg::kBelegeErfolgreich, text(Erfolg::kBelegeErfolgreich));
            cbo.AddItem(Erfolg::kBelegeFehlerhaft, text(Erfolg::kBelegeFehlerhaft));
        }
        cbo.setKey(required(moVerlaufFilter).byErfolgreich);
        return 0;
    });
}

void cAdminJob::mFilterSpeichern() {
    withErrorExit(QStringLiteral("mFilterSpeichern"), kKlasse, 0, [this](ErrorExit&) {
        frmVerlaufFilter& frm = required(mofrmFilter);
        cVerlaufFilter& filter = required(moVerlaufFilter);
        filter.lZeitWert = frm.cboComboBox(Combo::ZeitWert).Key();
        filter.lZeitEinheit = frm.cboComboBox(Combo::ZeitEinheit).Key();
        filter.byErfolgreich = static_cast<std::uint8_t>(frm.cboComboBox(Combo::Typ).Key());
        return 0;
    });
}

void cAdminJob::mofrmFilter_evFrmFilterfCMDButtonClicked(int Index) {
    withErrorExit(QStringLiteral("mofrmFilter_evFrmFilterfCMDButtonClicked"), kKlasse, 0,
                  [&](ErrorExit&) {
                      if (Index == frmVerlaufFilter::Cmd::Ok) {
                          mFilterSpeichern();
                          mFuelleGridVerlauf();
                      }
                      if (mofrmFilter) {
                          mofrmFilter->window().Unload();
                      }
                      mofrmFilter.reset();
                      return 0;
                  });
}
