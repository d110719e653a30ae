// The binary log of a bookings import: any bytes are read to their end or to the first
// record cut short, consuming bytes at every step.
#include <cstddef>
#include <cstdint>

#include <QBuffer>

#include "history/BookingsLogReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QBuffer in(&bytes);
    in.open(QIODevice::ReadOnly);
    BookingsLogReader reader(in);
    if (reader.readHeader()) {
        qint64 before = in.pos();
        while (reader.nextEntry()) {
            if (in.pos() <= before) {
                __builtin_trap();  // an entry that consumed nothing would loop forever
            }
            before = in.pos();
        }
    }
    in.seek(0);
    (void)bookingsLogHasBookings(in);
    return 0;
}
