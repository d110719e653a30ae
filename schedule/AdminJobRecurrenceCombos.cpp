// The small tools of the recurrence dialog: its combo lists, the weekday boxes and which of
// its parts are enabled or on show.
#include <array>

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleCodes.h"

namespace {

struct Eintrag {
    const char* text;
    long key;
};

constexpr std::array<Eintrag, 10> kWochentage{{{"Sonntag", WochentagCode::kSonntag},
                                               {"Montag", WochentagCode::kMontag},
                                               {"Dienstag", WochentagCode::kDienstag},
                                               {"Mittwoch", WochentagCode::kMittwoch},
                                               {"Donnerstag", WochentagCode::kDonnerstag},
                                               {"Freitag", WochentagCode::kFreitag},
                                               {"Samstag", WochentagCode::kSamstag},
                                               {"Tag", WochentagCode::kTag},
                                               {"Wochentag", WochentagCode::kWochentag},
                                               {"Wochenendtag", WochentagCode::kWochenendtag}}};

constexpr std::array<Eintrag, 5> kVorkommen{{{"1.", Vorkommen::kErster},
                                             {"2.", Vorkommen::kZweiter},
                                             {"3.", Vorkommen::kDritter},
                                             {"4.", Vorkommen::kVierter},
                                             {"Letzter", Vorkommen::kLetzter}}};

constexpr std::array<Eintrag, 2> kEinheiten{
    {{"Minute(n)", TagesEinheit::kMinuten}, {"Stunde(n)", TagesEinheit::kStunden}}};

// The check boxes run from Monday (0) to Sunday (6); the mask has Sunday as its lowest bit.
constexpr std::array<std::int32_t, frmZeitIntervall::Tag::Sonntag + 1> kTagesBit{
    WochentagBit::kMontag,     WochentagBit::kDienstag, WochentagBit::kMittwoch,
    WochentagBit::kDonnerstag, WochentagBit::kFreitag,  WochentagBit::kSamstag,
    WochentagBit::kSonntag};

template <std::size_t N>
void fuelle(IComboBox& cbo, const std::array<Eintrag, N>& eintraege, long lKey) {
    cbo.Clear();
    for (const Eintrag& e : eintraege) {
        cbo.AddItem(e.key, QString::fromUtf8(e.text));
    }
    if (lKey > -1) {
        cbo.setKey(lKey);
    }
}

}  // namespace

long cAdminJob::mlCBOKey(int Index) {
    return withErrorExit(QStringLiteral("mlCBOKey"), kKlasse, 0L, [&](ErrorExit&) {
        return required(mofrmzeitIntervall).cboComboBox(Index).Key();
    });
}

void cAdminJob::mInitCBO_Nummer(int& Index, long& lAnzahl, long lKey) {
    withErrorExit(QStringLiteral("mInitCBO_Nummer"), kKlasse, 0, [&](ErrorExit&) {
        IComboBox& cbo = required(mofrmzeitIntervall).cboComboBox(Index);
        cbo.Clear();
        for (long i = 1; i <= lAnzahl; ++i) {
            cbo.AddItem(i, QString::number(i));
        }
        if (lKey > -1) {
            cbo.setKey(lKey);
        }
        return 0;
    });
}

void cAdminJob::mNummern(int Index, long lAnzahl, long lKey) {
    mInitCBO_Nummer(Index, lAnzahl, lKey);
}

void cAdminJob::mInitCBO_Wochentag(int Index, long lKey) {
    withErrorExit(QStringLiteral("mInitCBO_Wochentag"), kKlasse, 0, [&](ErrorExit&) {
        fuelle(required(mofrmzeitIntervall).cboComboBox(Index), kWochentage, lKey);
        return 0;
    });
}

void cAdminJob::mInitCBO_First(int Index, long lKey) {
    withErrorExit(QStringLiteral("mInitCBO_First"), kKlasse, 0, [&](ErrorExit&) {
        fuelle(required(mofrmzeitIntervall).cboComboBox(Index), kVorkommen, lKey);
        return 0;
    });
}

void cAdminJob::mInitCBO_MinuteStunde(int Index, long lKey) {
    withErrorExit(QStringLiteral("mInitCBO_MinuteStunde"), kKlasse, 0, [&](ErrorExit&) {
        fuelle(required(mofrmzeitIntervall).cboComboBox(Index), kEinheiten, lKey);
        return 0;
    });
}

std::int32_t cAdminJob::mlGetWochentage() {
    return withErrorExit(
        QStringLiteral("mlGetWochentage"), kKlasse, std::int32_t{0}, [&](ErrorExit&) {
            frmZeitIntervall& f = required(mofrmzeitIntervall);
            std::int32_t lMaske = 0;
            for (int i = frmZeitIntervall::Tag::Montag; i <= frmZeitIntervall::Tag::Sonntag; ++i) {
                if (f.chkCheckBox(i).Value() == 1) {
                    lMaske += kTagesBit[i];
                }
            }
            return lMaske;
        });
}

void cAdminJob::mSetzeWochentage(std::int32_t lWochentage) {
    withErrorExit(QStringLiteral("mSetzeWochentage"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        for (int i = frmZeitIntervall::Tag::Montag; i <= frmZeitIntervall::Tag::Sonntag; ++i) {
            f.chkCheckBox(i).setValue((lWochentage & kTagesBit[i]) != 0 ? 1 : 0);
        }
        return 0;
    });
}

bool cAdminJob::mbCheckWochentag() {
    return withErrorExit(QStringLiteral("mbCheckWochentag"), kKlasse, false, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        for (int i = frmZeitIntervall::Tag::Montag; i <= frmZeitIntervall::Tag::Sonntag; ++i) {
            if (f.chkCheckBox(i).Value() == 1) {
                return true;
            }
        }
        return false;
    });
}

void cAdminJob::mEnableHaeufigkeitProTag_Einmalig(bool bEnable) {
    withErrorExit(QStringLiteral("mEnableHaeufigkeitProTag_Einmalig"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        f.ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).setEnabled(!bEnable);
        f.ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).setEnabled(bEnable);
        f.ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm).setEnabled(bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).setEnabled(bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::JedeEinheit).setEnabled(bEnable);
        return 0;
    });
}

void cAdminJob::mEnableMonatlichAm(bool bEnable) {
    withErrorExit(QStringLiteral("mEnableMonatlichAm"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        f.lblLabel(frmZeitIntervall::Lbl::MonateTag).setEnabled(bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::MonatTag).setEnabled(bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::MonateAlle).setEnabled(bEnable);
        f.lblLabel(frmZeitIntervall::Lbl::MonateAm).setEnabled(!bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::AmErster).setEnabled(!bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::AmWochentag).setEnabled(!bEnable);
        f.cboComboBox(frmZeitIntervall::Cbo::AmMonateAlle).setEnabled(!bEnable);
        return 0;
    });
}

void cAdminJob::mShowFrameZeitIntervall(int Index) {
    withErrorExit(QStringLiteral("mShowFrameZeitIntervall"), kKlasse, 0, [&](ErrorExit&) {
        frmZeitIntervall& f = required(mofrmzeitIntervall);
        // The three frames share one place; the layout puts them there.
        for (int i : {frmZeitIntervall::Fra::Taeglich, frmZeitIntervall::Fra::Woechentlich,
                      frmZeitIntervall::Fra::Monatlich}) {
            f.fraFrame(i).setVisible(false);
        }
        f.fraFrame(Index).setVisible(true);
        return 0;
    });
}
