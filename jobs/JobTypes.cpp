#include "jobs/JobTypes.h"

#include "common/Services.h"

namespace {
constexpr int kTextKesto = 1236;
}

QString kestoDirektLabel() {
    auto& texte = services().coreTexte;
    const QString sKesto = texte ? texte->GetText(QVariant(kTextKesto)) : QString();
    return QStringLiteral("Import Buchungen ") + sKesto + QStringLiteral(" (direkt)");
}

QString auftragsartLabel(long lDatenArt) {
    switch (lDatenArt) {
        case DatenArt::Kunden:
            return QStringLiteral("Import Kunden");
        case DatenArt::Lieferanten:
            return QStringLiteral("Import Lieferanten");
        case DatenArt::Buchungen:
            return QStringLiteral("Import Buchungen");
        case DatenArt::Wirtschaftsgueter:
            return QStringLiteral("Import Wirtschaftsgüter");
        case DatenArt::KestoDirekt:
            return kestoDirektLabel();
        case DatenArt::Nivora:
            return QStringLiteral("Import Nivora");
        case DatenArt::ScanDokumente:
            return QStringLiteral("Übernahme Scan-Dokumente");
        case DatenArt::Verschlagwortung:
            return QStringLiteral("Verschlagwortung Belege");
        case DatenArt::Textdatei:
            return QStringLiteral("Textdatei-Import");
        default:
            return {};
    }
}

QString auftragsartComboText(long lDatenArt) {
    if (lDatenArt == 0) {
        return QStringLiteral("Alle");
    }
    if (lDatenArt == DatenArt::ScanDokumente) {
        return QStringLiteral("Scan-Dokumente übernehmen");
    }
    return auftragsartLabel(lDatenArt);
}

std::vector<std::uint8_t> auftragsartComboFolge(bool bMitAlle, bool bLokaleInstallation,
                                                bool bMitNivora) {
    std::vector<std::uint8_t> folge;
    folge.reserve(11);
    if (bMitAlle) {
        folge.push_back(0);
    }
    for (const std::uint8_t art : {DatenArt::Kunden, DatenArt::Lieferanten, DatenArt::Buchungen,
                                   DatenArt::Wirtschaftsgueter}) {
        folge.push_back(art);
    }
    if (bLokaleInstallation) {
        folge.push_back(DatenArt::KestoDirekt);
    }
    if (bMitNivora) {
        folge.push_back(DatenArt::Nivora);
    }
    for (const std::uint8_t art :
         {DatenArt::ScanDokumente, DatenArt::Verschlagwortung, DatenArt::Textdatei}) {
        folge.push_back(art);
    }
    return folge;
}
