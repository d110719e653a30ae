#pragma once

#include <QByteArray>
#include <QIODevice>
#include <optional>

// Reads the binary log of a bookings import record by record from a stream, without reading
// ahead: a header record, then entry records to the end. Records are packed, integers
// little-endian, a text is a 16-bit length and that many single-byte characters. Only the
// third 16-bit value of an entry, the bookings marker, means anything here.
//
// A record that the stream ends in the middle of counts as not there: the reader stops. Every
// step consumes bytes or stops, so garbage ends the reading and never loops.
class BookingsLogReader {
  public:
    explicit BookingsLogReader(QIODevice& in) : in_(in) {}

    // False when the stream ends before the header is whole.
    bool readHeader();
    // The marker of the next whole entry; nothing at the end or at an entry cut off.
    std::optional<qint16> nextEntry();

  private:
    bool skip(qint64 count);
    bool readInt16(qint16& value);
    bool skipTexts(int count);

    QIODevice& in_;
    QByteArray buffer_;
};

// Whether a whole entry of the log carries a bookings marker other than 0.
bool bookingsLogHasBookings(QIODevice& in);
