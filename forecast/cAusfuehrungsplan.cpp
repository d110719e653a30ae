#include "forecast/cAusfuehrungsplan.h"

#include <QLocale>
#include <QSet>
#include <QTimeZone>
#include <algorithm>

#include "app/LibraryObjects.h"
#include "app/cSchedule.h"
#include "common/ErrorExit.h"
#include "common/Recordset.h"
#include "common/Services.h"
#include "forecast/RunForecast.h"
#include "forecast/ScheduleRuleOf.h"
#include "jobs/JobTypes.h"
#include "schedule/ScheduleStore.h"
#include "ui/Window.h"
#include "ui/windows/frmAusfuehrungsplan.h"

namespace {

using P = frmAusfuehrungsplan;

const QString kKlasse = QStringLiteral("cAusfuehrungsplan");

// The keys of the period combo: the days of the period, a month as 31.
constexpr long kTag = 1;
constexpr long kWoche = 7;
constexpr long kMonat = 31;

struct Start {
    qint64 utc;
    ForecastRun run;
    int zeitplan;  // index into the schedules
};

QString anzahl(int n, const char* einer, const char* mehrere) {
    return QString::number(n) + u' ' + QString::fromUtf8(n == 1 ? einer : mehrere);
}

QString datumText(const QDate& d) {
    return d.toString(QStringLiteral("dd.MM.yyyy"));
}

}  // namespace

cAusfuehrungsplan::cAusfuehrungsplan() = default;
cAusfuehrungsplan::~cAusfuehrungsplan() = default;

void cAusfuehrungsplan::zeigen(long lJobId) {
    ErrorExit ex(QStringLiteral("zeigen"), kKlasse);
    try {
        laden(lJobId, ex);
        mofrm = std::make_unique<frmAusfuehrungsplan>(
            services().windows->create(frmAusfuehrungsplan::declaration()));
        frmAusfuehrungsplan& f = *mofrm;
        f.evCommandButtonClicked = [this](int index) { onCommandButton(index); };
        f.evComboboxClicked = [this](int index) {
            if (index == P::Cbo::Zeitraum) {
                zeitraumSetzen(mdVon);
            } else {
                planFuellen();
            }
        };
        IComboBox& zeitraum = f.cboComboBox(P::Cbo::Zeitraum);
        zeitraum.AddItem(kTag, QStringLiteral("Tag"));
        zeitraum.AddItem(kWoche, QStringLiteral("Woche"));
        zeitraum.AddItem(kMonat, QStringLiteral("Monat"));
        zeitraum.setKey(kWoche);
        filterFuellen();
        zeitraumSetzen(clockNow().date());
        f.window().Show(true);
        mofrm.reset();
    } catch (...) {
        mofrm.reset();
        ex.fail();
    }
}

void cAusfuehrungsplan::laden(long lJobId, ErrorExit& ex) {
    QString sSql = QStringLiteral(
        "select s.*, j.Aktiviert as JobAktiviert, j.DatenArt as JobDatenArt, j.Name as JobName, "
        "v.[Mandant/Kanzlei] as JobMandant from tAutoJobSchedule s inner join tAutoJobJob j on "
        "j.idAutoJob = s.idAutoJob left join dbo.V_ZPK_Applications_System_AutoJob v on v.JobId "
        "= j.idAutoJob");
    if (lJobId > 0) {
        sSql += QStringLiteral(" where j.idAutoJob = ") + QString::number(lJobId);
    }
    sSql += QStringLiteral(" order by s.idAutoJob, s.idAutoJobSchedule");
    auto oTL = neuesRecordset(ex);
    oTL->Connect();
    QSet<long> inaktiv;
    if (oTL->OpenQuery(sSql, 2) >= 1) {
        do {
            const long lJob = oTL->ReadLong(QStringLiteral("idAutoJob"));
            if (oTL->ReadLong(QStringLiteral("JobAktiviert")) == 0) {
                inaktiv.insert(lJob);
                continue;
            }
            cSchedule o;
            ScheduleStore::readColumns(*oTL, o);
            if (o.pbyAktiviert == 0) {
                ++miZeitplaeneInaktiv;
                continue;
            }
            Zeitplan z;
            z.lJob = lJob;
            z.lZeitplan = oTL->ReadLong(QStringLiteral("idAutoJobSchedule"));
            z.sAuftrag = oTL->ReadText(QStringLiteral("JobName"));
            z.sZeitplan = o.psName;
            z.sMandant = oTL->ReadText(QStringLiteral("JobMandant"));
            z.lDatenArt = oTL->ReadLong(QStringLiteral("JobDatenArt"));
            z.regel = scheduleRuleOf(o);
            maZeitplaene.append(z);
        } while (oTL->Move(CRecordset::MoveNext));
    }
    oTL->Close();
    oTL->Disconnect();
    miAuftraegeInaktiv = static_cast<int>(inaktiv.size());
}

void cAusfuehrungsplan::filterFuellen() {
    QStringList mandanten;
    QList<long> arten;
    for (const Zeitplan& z : std::as_const(maZeitplaene)) {
        if (!mandanten.contains(z.sMandant)) {
            mandanten << z.sMandant;
        }
        if (!arten.contains(z.lDatenArt)) {
            arten << z.lDatenArt;
        }
    }
    mandanten.sort(Qt::CaseInsensitive);
    std::sort(arten.begin(), arten.end());
    IComboBox& mandant = mofrm->cboComboBox(P::Cbo::Mandant);
    mandant.AddItem(-1, QStringLiteral("(alle)"));
    for (int i = 0; i < mandanten.size(); ++i) {
        mandant.AddItem(i, mandanten[i]);
    }
    mandant.setKey(-1);
    IComboBox& art = mofrm->cboComboBox(P::Cbo::Auftragsart);
    art.AddItem(-1, QStringLiteral("(alle)"));
    for (const long lArt : arten) {
        art.AddItem(lArt, auftragsartLabel(lArt));
    }
    art.setKey(-1);
}

void cAusfuehrungsplan::zeitraumSetzen(const QDate& dTag) {
    const long lZeitraum = mofrm->cboComboBox(P::Cbo::Zeitraum).Key();
    if (lZeitraum == kMonat) {
        mdVon = QDate(dTag.year(), dTag.month(), 1);
        mdBis = mdVon.addMonths(1);
    } else if (lZeitraum == kTag) {
        mdVon = dTag;
        mdBis = mdVon.addDays(1);
    } else {
        mdVon = dTag.addDays(1 - dTag.dayOfWeek());  // Monday
        mdBis = mdVon.addDays(7);
    }
    const QLocale de(QLocale::German, QLocale::Germany);
    QString sText;
    if (lZeitraum == kMonat) {
        sText = de.toString(mdVon, QStringLiteral("MMMM yyyy"));
    } else if (lZeitraum == kTag) {
        sText = de.toString(mdVon, QStringLiteral("dddd, dd.MM.yyyy"));
    } else {
        sText = QStringLiteral("Woche vom %1 bis %2")
                    .arg(datumText(mdVon), datumText(mdBis.addDays(-1)));
    }
    mofrm->lblLabel(P::Lbl::Zeitraum).setCaption(sText);
    planFuellen();
}

void cAusfuehrungsplan::planFuellen() {
    frmAusfuehrungsplan& f = *mofrm;
    const long lMandant = f.cboComboBox(P::Cbo::Mandant).Key();
    const QString sMandant = lMandant >= 0 ? f.cboComboBox(P::Cbo::Mandant).ItemText() : QString();
    const long lArt = f.cboComboBox(P::Cbo::Auftragsart).Key();

    LocalClock clock(QTimeZone::systemTimeZone());
    const qint64 von = clock.at((mdVon.toJulianDay() - 2440588) * LocalClock::kDay).utc;
    const qint64 bis = clock.at((mdBis.toJulianDay() - 2440588) * LocalClock::kDay).utc;
    QList<int> ohne;
    auto gezeigt = [&](int i) {
        const Zeitplan& z = maZeitplaene[i];
        return (lMandant < 0 || z.sMandant == sMandant) && (lArt < 0 || z.lDatenArt == lArt);
    };
    QList<int> berechenbar;
    for (int i = 0; i < maZeitplaene.size(); ++i) {
        if (ruleFault(maZeitplaene[i].regel).isEmpty()) {
            berechenbar << i;
        } else if (gezeigt(i)) {
            ohne << i;
        }
    }

    // The period a day at a time, so that no more than a day's starts and the rows shown are
    // held however long the period and however many the schedules. Every start counts for the
    // overlaps, so that one of a job type filtered out still marks one.
    struct Zeile {
        ForecastRun run;
        int zeitplan;
        bool nah = false;
    };
    struct Letzter {
        qint64 utc;
        int zeile;  // its row, -1 when not shown
    };
    QList<Zeile> zeilen;
    qint64 iStarts = 0;
    QHash<QString, Letzter> letzter;
    for (qint64 tag = von; tag < bis; tag += LocalClock::kDay) {
        if (zeilen.size() >= kHoechstens && tag > zeilen.constLast().run.utc + kNaehe) {
            // No later start marks a row shown: the rest is only counted.
            for (const int i : std::as_const(berechenbar)) {
                if (gezeigt(i)) {
                    RunForecast::eachRun(maZeitplaene[i].regel, tag, bis, clock,
                                         [&](const ForecastRun&) { return ++iStarts > 0; });
                }
            }
            break;
        }
        const qint64 tagBis = std::min(tag + LocalClock::kDay, bis);
        QList<Start> starts;
        for (const int i : std::as_const(berechenbar)) {
            RunForecast::eachRun(maZeitplaene[i].regel, tag, tagBis, clock,
                                 [&](const ForecastRun& run) {
                                     starts.append({run.utc, run, i});
                                     return true;
                                 });
        }
        std::stable_sort(starts.begin(), starts.end(),
                         [](const Start& a, const Start& b) { return a.utc < b.utc; });
        for (const Start& start : std::as_const(starts)) {
            int zeile = -1;
            if (gezeigt(start.zeitplan)) {
                ++iStarts;
                if (zeilen.size() < kHoechstens) {
                    zeilen.append({start.run, start.zeitplan});
                    zeile = static_cast<int>(zeilen.size()) - 1;
                }
            }
            // Starts of one client close to another's: both are marked.
            const QString& m = maZeitplaene[start.zeitplan].sMandant;
            const auto it = letzter.constFind(m);
            if (it != letzter.constEnd() && start.utc - it->utc <= kNaehe) {
                if (zeile >= 0) {
                    zeilen[zeile].nah = true;
                }
                if (it->zeile >= 0) {
                    zeilen[it->zeile].nah = true;
                }
            }
            letzter.insert(m, {start.utc, zeile});
        }
    }

    IGrid& grd = f.grdPlan();
    grd.setRows(1);
    grd.setCols(5);
    grd.setFixedRows(1);
    grd.setFormatString(QStringLiteral("<Start|<Auftrag|<Zeitplan|<Mandant/Kanzlei|<Hinweis"));
    for (const auto& [col, breite] : {std::pair{P::Spalte::Start, 2400},
                                      {P::Spalte::Auftrag, 2200},
                                      {P::Spalte::Zeitplan, 1600},
                                      {P::Spalte::Mandant, 1800},
                                      {P::Spalte::Hinweis, 4600}}) {
        grd.setColWidth(col, breite);
    }
    for (const int i : std::as_const(ohne)) {
        const Zeitplan& z = maZeitplaene[i];
        grd.AddItem(QStringLiteral("Keine Ausführung\t%1\t%2\t%3\t%4")
                        .arg(z.sAuftrag, z.sZeitplan, z.sMandant, ruleFault(z.regel)));
    }
    for (const Zeile& zeile : std::as_const(zeilen)) {
        const Zeitplan& z = maZeitplaene[zeile.zeitplan];
        QStringList hinweis;
        if (zeile.nah) {
            hinweis << QStringLiteral("Überschneidung");
        }
        const QString sUmstellung = RunForecast::changeText(zeile.run);
        if (!sUmstellung.isEmpty()) {
            hinweis << sUmstellung;
        }
        grd.AddItem(RunForecast::runText(zeile.run) + u'\t' + z.sAuftrag + u'\t' + z.sZeitplan +
                    u'\t' + z.sMandant + u'\t' + hinweis.join(QStringLiteral("; ")));
    }

    QString sSumme =
        iStarts == 1 ? QStringLiteral("1 Start") : QStringLiteral("%1 Starts").arg(iStarts);
    if (iStarts > zeilen.size()) {
        sSumme += QStringLiteral(", gezeigt die ersten %1").arg(zeilen.size());
    }
    sSumme += QStringLiteral(". Nicht aktiv und nicht berücksichtigt: ") +
              anzahl(miAuftraegeInaktiv, "Auftrag", "Aufträge") + QStringLiteral(", ") +
              anzahl(miZeitplaeneInaktiv, "Zeitplan", "Zeitpläne") + u'.';
    f.lblLabel(P::Lbl::Summe).setCaption(sSumme);
}

void cAusfuehrungsplan::onCommandButton(int index) {
    ErrorExit ex(QStringLiteral("onCommandButton"), kKlasse);
    try {
        const long lZeitraum = mofrm->cboComboBox(P::Cbo::Zeitraum).Key();
        const int iSchritt = lZeitraum == kMonat ? 0 : static_cast<int>(lZeitraum);
        switch (index) {
            case P::Cmd::Zurueck:
                zeitraumSetzen(iSchritt ? mdVon.addDays(-iSchritt) : mdVon.addMonths(-1));
                break;
            case P::Cmd::Vor:
                zeitraumSetzen(mdBis);
                break;
            case P::Cmd::Heute:
                zeitraumSetzen(clockNow().date());
                break;
            case P::Cmd::Schliessen:
                mofrm->window().Unload();
                break;
            default:
                break;
        }
    } catch (...) {
        ex.fail();
    }
}
