#include "history/HistoryTexts.h"

QString erfolgText(std::uint8_t byCode, const QString& sKesto) {
    switch (byCode) {
        case Erfolg::kFehlerhaft:
        case Erfolg::kScanFehlerhaft:
        case Erfolg::kBelegeFehlerhaft:
            return QStringLiteral("fehlerhaft");
        case Erfolg::kErfolgreich:
        case Erfolg::kScanErfolgreich:
        case Erfolg::kBelegeErfolgreich:
            return QStringLiteral("erfolgreich");
        case Erfolg::kKeineMta:
            return QStringLiteral("keine MTA gefunden.");
        case Erfolg::kAlle:
            return QStringLiteral("Alle");
        case Erfolg::kKeineKestoDaten:
            return QStringLiteral("keine Daten aus ") + sKesto + QStringLiteral(".");
        case Erfolg::kKeineNivoraDaten:
            return QStringLiteral("keine Daten aus Nivora.");
        default:
            return {};
    }
}
