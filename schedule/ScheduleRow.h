#pragma once

#include <cstdint>

class CRecordset;
class cSchedule;

// A whole number of the database as the record's 32-bit field or byte; a value out of range
// raises an overflow.
std::int32_t alsLong32(long lWert);
std::uint8_t alsByte(long lWert);

// Reads the frequency fields, times and dates of the current row of tAutoJobSchedule into
// the record; name and active flag are read by the callers, each at its own place.
void leseZeitplanWiederholung(CRecordset& oTL, cSchedule& o);
