#pragma once

// How far the number lists of the recurrence dialog reach.
namespace ZeitintervallBereich {
inline constexpr long kKeineAuswahl = -1;
inline constexpr long kTage = 366;
inline constexpr long kWochen = 52;
inline constexpr long kMonatstage = 31;
inline constexpr long kMonate = 99;
inline constexpr long kStunden = 24;
inline constexpr long kMinuten = 1440;
}  // namespace ZeitintervallBereich
