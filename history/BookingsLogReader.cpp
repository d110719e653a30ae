#include "history/BookingsLogReader.h"

#include <algorithm>

namespace {

constexpr qint64 kKopfBlock1 = 24;
constexpr int kKopfTexte1 = 5;
constexpr qint64 kKopfBlock2 = 14;
constexpr int kKopfTexte2 = 1;

constexpr qint64 kEintragBloecke1 = 13 + 9 + 8;
constexpr int kEintragTexte1 = 2;
constexpr qint64 kEintragBlock2 = 28;
constexpr int kEintragTexte2 = 4;

constexpr qint64 kPuffer = 4096;

}  // namespace

bool BookingsLogReader::skip(qint64 count) {
    while (count > 0) {
        const qint64 chunk = std::min(count, kPuffer);
        buffer_.resize(chunk);
        if (in_.read(buffer_.data(), chunk) != chunk) {
            return false;
        }
        count -= chunk;
    }
    return true;
}

bool BookingsLogReader::readInt16(qint16& value) {
    char bytes[2];
    if (in_.read(bytes, 2) != 2) {
        return false;
    }
    const auto low = static_cast<quint16>(static_cast<unsigned char>(bytes[0]));
    const auto high = static_cast<quint16>(static_cast<unsigned char>(bytes[1]));
    value = static_cast<qint16>(low | (high << 8));
    return true;
}

bool BookingsLogReader::skipTexts(int count) {
    for (int i = 0; i < count; ++i) {
        qint16 length = 0;
        if (!readInt16(length) || !skip(static_cast<quint16>(length))) {
            return false;
        }
    }
    return true;
}

bool BookingsLogReader::readHeader() {
    return skip(kKopfBlock1) && skipTexts(kKopfTexte1) && skip(kKopfBlock2) &&
           skipTexts(kKopfTexte2);
}

std::optional<qint16> BookingsLogReader::nextEntry() {
    qint16 first = 0;
    qint16 second = 0;
    qint16 marker = 0;
    if (!readInt16(first) || !readInt16(second) || !readInt16(marker) || !skip(kEintragBloecke1) ||
        !skipTexts(kEintragTexte1) || !skip(kEintragBlock2) || !skipTexts(kEintragTexte2)) {
        return std::nullopt;
    }
    return marker;
}

bool bookingsLogHasBookings(QIODevice& in) {
    BookingsLogReader reader(in);
    if (!reader.readHeader()) {
        return false;
    }
    while (const std::optional<qint16> marker = reader.nextEntry()) {
        if (*marker != 0) {
            return true;
        }
    }
    return false;
}
