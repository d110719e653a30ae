#pragma once

#include <QString>
#include <cstdint>

// To whom a job applies: the number MandKanz, the key of the client kind combo.
namespace MandKanz {
constexpr std::uint8_t Mandant = 1;
constexpr std::uint8_t Kanzlei = 2;
constexpr std::uint8_t AlleMandanten = 3;
constexpr std::uint8_t AlleKanzleien = 4;
constexpr std::uint8_t AlleMandantenKanzleien = 5;
}  // namespace MandKanz

// "Mandant", "Kanzlei", "Alle Mandanten", "Alle Kanzleien", "Alle Mandanten/Kanzleien"; ""
// for any other code.
QString mandKanzText(long lMandKanz);

// Codes 3 to 5 stand for all clients or offices: the job's client id is then 0.
bool mandKanzFuerAlle(long lMandKanz);

// Whether codes 3 to 5 are offered: only for job types 4, 5, 20, 21 and 99, and only in an
// installation of clients and offices (kind of file 4).
bool mandKanzAlleAngeboten(long lDatenArt, long lAktenTyp);
