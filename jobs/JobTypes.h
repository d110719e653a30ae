#pragma once

#include <QString>
#include <cstdint>
#include <vector>

// The job types: the number DatenArt keys every job type combo and every per-type rule, and
// is a contract with the agent service.
namespace DatenArt {
constexpr std::uint8_t Buchungen = 4;
constexpr std::uint8_t Wirtschaftsgueter = 5;
constexpr std::uint8_t Kunden = 17;
constexpr std::uint8_t Lieferanten = 18;
constexpr std::uint8_t ScanDokumente = 20;
constexpr std::uint8_t Verschlagwortung = 21;
constexpr std::uint8_t KestoDirekt = 28;
constexpr std::uint8_t Nivora = 30;
constexpr std::uint8_t Textdatei = 99;
}  // namespace DatenArt

// The label of a job type as the list shows it, "" for a type no one knows.
QString auftragsartLabel(long lDatenArt);

// The entry of a job type in a combo box. Type 20 reads differently from its label.
QString auftragsartComboText(long lDatenArt);

// "Import Buchungen " + text 1236 of the suite + " (direkt)": the label of type 28, composed
// the same way wherever it is compared.
QString kestoDirektLabel();

// The keys of a job type combo in their order: 0 ("Alle") when asked for, the always offered
// types, 28 only in a local installation, 30 only when asked for.
std::vector<std::uint8_t> auftragsartComboFolge(bool bMitAlle, bool bLokaleInstallation,
                                                bool bMitNivora);
