// The reader of a bookings import's binary log, over crafted bytes.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QRandomGenerator>

#include "history/BookingsLogReader.h"

namespace {

// Builds a log with the texts of a chosen length; remembers where each entry ends.
class LogBytes {
  public:
    explicit LogBytes(int textLength = 2) : textLength_(textLength) {
        zeros(24);
        texts(5);
        zeros(14);
        texts(1);
        headerEnd_ = bytes_.size();
    }

    LogBytes& entry(int marker) {
        put16(7);
        put16(-1);
        put16(marker);
        zeros(13 + 9 + 8);
        texts(2);
        zeros(28);
        texts(4);
        entryEnds_.push_back(bytes_.size());
        markers_.push_back(marker);
        return *this;
    }

    const QByteArray& bytes() const { return bytes_; }
    qsizetype headerEnd() const { return headerEnd_; }
    const std::vector<qsizetype>& entryEnds() const { return entryEnds_; }

    // Whether the first count bytes hold a whole entry with a marker other than 0.
    bool bookingWithin(qsizetype count) const {
        for (std::size_t i = 0; i < entryEnds_.size(); ++i) {
            if (entryEnds_[i] <= count && markers_[i] != 0) {
                return true;
            }
        }
        return false;
    }

  private:
    void put16(int value) {
        const auto v = static_cast<quint16>(value);
        bytes_.append(static_cast<char>(v & 0xff));
        bytes_.append(static_cast<char>(v >> 8));
    }
    void zeros(int count) { bytes_.append(QByteArray(count, '\0')); }
    void texts(int count) {
        for (int i = 0; i < count; ++i) {
            put16(textLength_);
            // Text bytes that would look like markers if the reader lost its place.
            bytes_.append(QByteArray(textLength_, '\x01'));
        }
    }

    int textLength_;
    QByteArray bytes_;
    qsizetype headerEnd_ = 0;
    std::vector<qsizetype> entryEnds_;
    std::vector<int> markers_;
};

bool hasBookings(const QByteArray& bytes) {
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    return bookingsLogHasBookings(buffer);
}

TEST(BookingsLogReader, FindsAMarkerInTheFirstOrTheLastEntryOnly) {
    EXPECT_TRUE(hasBookings(LogBytes().entry(1).entry(0).entry(0).bytes()));
    EXPECT_TRUE(hasBookings(LogBytes().entry(0).entry(0).entry(1).bytes()));
    EXPECT_TRUE(hasBookings(LogBytes().entry(0).entry(-1).bytes()));
    EXPECT_FALSE(hasBookings(LogBytes().entry(0).entry(0).entry(0).bytes()));
}

TEST(BookingsLogReader, EmptyFileHeaderAloneAndCutHeaderHoldNoBookings) {
    EXPECT_FALSE(hasBookings(QByteArray()));
    const LogBytes kopf;
    EXPECT_FALSE(hasBookings(kopf.bytes()));
    EXPECT_FALSE(hasBookings(kopf.bytes().left(kopf.headerEnd() - 1)));
}

TEST(BookingsLogReader, EveryTruncationPointStopsCleanly) {
    for (const auto& log : {LogBytes().entry(0).entry(0).entry(3), LogBytes().entry(2).entry(0),
                            LogBytes().entry(0).entry(5).entry(0)}) {
        for (qsizetype n = 0; n <= log.bytes().size(); ++n) {
            EXPECT_EQ(hasBookings(log.bytes().left(n)), log.bookingWithin(n)) << "at byte " << n;
        }
    }
}

TEST(BookingsLogReader, TextsOfZeroAndOfMaximalLength) {
    EXPECT_TRUE(hasBookings(LogBytes(0).entry(0).entry(1).bytes()));
    EXPECT_FALSE(hasBookings(LogBytes(0).entry(0).bytes()));
    const LogBytes gross = LogBytes(65535).entry(0).entry(9);
    EXPECT_TRUE(hasBookings(gross.bytes()));
    EXPECT_FALSE(hasBookings(gross.bytes().left(gross.bytes().size() - 1)));
    EXPECT_FALSE(hasBookings(LogBytes(65535).entry(0).bytes()));
}

TEST(BookingsLogReader, LengthPastTheEndStops) {
    // The last text of the entry claims 65535 bytes, of which only 2 follow.
    QByteArray bytes = LogBytes().entry(1).bytes();
    bytes[bytes.size() - 4] = '\xff';
    bytes[bytes.size() - 3] = '\xff';
    EXPECT_FALSE(hasBookings(bytes));
}

TEST(BookingsLogReader, ReadsNoFurtherThanTheRecordItStandsOn) {
    const LogBytes log = LogBytes().entry(0).entry(4);
    QByteArray copy = log.bytes();
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    BookingsLogReader reader(buffer);
    ASSERT_TRUE(reader.readHeader());
    EXPECT_EQ(buffer.pos(), log.headerEnd());
    EXPECT_EQ(reader.nextEntry(), std::optional<qint16>(0));
    EXPECT_EQ(buffer.pos(), log.entryEnds().at(0));
    EXPECT_EQ(reader.nextEntry(), std::optional<qint16>(4));
    EXPECT_EQ(buffer.pos(), log.entryEnds().at(1));
    EXPECT_EQ(reader.nextEntry(), std::nullopt);
}

TEST(BookingsLogReader, GarbageEnds) {
    QRandomGenerator zufall(4711);
    for (int i = 0; i < 200; ++i) {
        QByteArray bytes(static_cast<qsizetype>(zufall.bounded(4000)), '\0');
        for (char& c : bytes) {
            c = static_cast<char>(zufall.bounded(256));
        }
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        bookingsLogHasBookings(buffer);
        EXPECT_LE(buffer.pos(), bytes.size());
    }
}

}  // namespace
