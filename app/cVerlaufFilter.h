#pragma once

#include <cstdint>

// The filter of the run history, held in memory only: each opening of the history starts
// from the defaults that mShowVerlauf sets.
class cVerlaufFilter {
  public:
    // 1 day, 2 week, 3 month, 4 year.
    long lZeitEinheit = 0;
    // The length of the period in that unit, 1 to 365.
    long lZeitWert = 0;
    // The result code to show; 3 shows all.
    std::uint8_t byErfolgreich = 0;
};
