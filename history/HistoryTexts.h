#pragma once

#include <QString>
#include <cstdint>

// The result codes of a run as the agent service stores them in Erfolgreich.
namespace Erfolg {
constexpr std::uint8_t kFehlerhaft = 0;
constexpr std::uint8_t kErfolgreich = 1;
constexpr std::uint8_t kKeineMta = 2;
constexpr std::uint8_t kAlle = 3;
constexpr std::uint8_t kKeineKestoDaten = 4;
constexpr std::uint8_t kKeineNivoraDaten = 5;
constexpr std::uint8_t kScanErfolgreich = 10;
constexpr std::uint8_t kScanFehlerhaft = 11;
constexpr std::uint8_t kBelegeErfolgreich = 20;
constexpr std::uint8_t kBelegeFehlerhaft = 21;
}  // namespace Erfolg

// The text of a result code; sKesto is the merchandise system's name (text 1236). A code
// outside the table gives "".
QString erfolgText(std::uint8_t byCode, const QString& sKesto);
