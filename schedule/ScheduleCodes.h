#pragma once

#include <cstdint>

// The codes of tAutoJobSchedule as the agent service reads them. Never change a value.

// FreqencyType.
namespace Haeufigkeit {
inline constexpr std::int32_t kEinmal = 1;
inline constexpr std::int32_t kTaeglich = 4;
inline constexpr std::int32_t kWoechentlich = 8;
// On a day number of the month.
inline constexpr std::int32_t kMonatlich = 16;
// On an occurrence of a weekday in the month, such as the second Tuesday.
inline constexpr std::int32_t kMonatlichRelativ = 32;
}  // namespace Haeufigkeit

// FrequencySubDay: how often a job starts on one of its days.
namespace TagesEinheit {
inline constexpr std::int32_t kEinmalig = 1;
inline constexpr std::int32_t kMinuten = 4;
inline constexpr std::int32_t kStunden = 8;
}  // namespace TagesEinheit

// FrequencyInterval of a weekly schedule: a bit mask, Sunday the lowest bit.
namespace WochentagBit {
inline constexpr std::int32_t kSonntag = 1;
inline constexpr std::int32_t kMontag = 2;
inline constexpr std::int32_t kDienstag = 4;
inline constexpr std::int32_t kMittwoch = 8;
inline constexpr std::int32_t kDonnerstag = 16;
inline constexpr std::int32_t kFreitag = 32;
inline constexpr std::int32_t kSamstag = 64;
}  // namespace WochentagBit

// FrequencyInterval of a relative monthly schedule: a plain count, not a bit mask.
namespace WochentagCode {
inline constexpr std::int32_t kSonntag = 1;
inline constexpr std::int32_t kMontag = 2;
inline constexpr std::int32_t kDienstag = 3;
inline constexpr std::int32_t kMittwoch = 4;
inline constexpr std::int32_t kDonnerstag = 5;
inline constexpr std::int32_t kFreitag = 6;
inline constexpr std::int32_t kSamstag = 7;
inline constexpr std::int32_t kTag = 8;
inline constexpr std::int32_t kWochentag = 9;
inline constexpr std::int32_t kWochenendtag = 10;
}  // namespace WochentagCode

// FrequencyRelativeInterval: which occurrence in the month, as powers of two.
namespace Vorkommen {
inline constexpr std::int32_t kErster = 1;
inline constexpr std::int32_t kZweiter = 2;
inline constexpr std::int32_t kDritter = 4;
inline constexpr std::int32_t kVierter = 8;
inline constexpr std::int32_t kLetzter = 16;
}  // namespace Vorkommen
