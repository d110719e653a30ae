#include "common/Password.h"

#include <algorithm>

namespace {

// Windows-1252 at 0x80..0x9F; the other codes are those of Latin-1. 0 marks the five
// unassigned codes, which map to the C1 control of the same number.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

QString reversed(const QString& s) {
    QString r = s;
    std::reverse(r.begin(), r.end());
    return r;
}

}  // namespace

QByteArray toAnsi(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    for (QChar c : text) {
        const char16_t u = c.unicode();
        char byte = '?';
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            byte = static_cast<char>(u);
        } else if (u >= 0x80 && u <= 0x9F && kCp1252High[u - 0x80] == 0) {
            byte = static_cast<char>(u);
        } else {
            for (int i = 0; i < 32; ++i) {
                if (kCp1252High[i] == u) {
                    byte = static_cast<char>(0x80 + i);
                    break;
                }
            }
        }
        out.append(byte);
    }
    return out;
}

QString fromAnsi(const QByteArray& bytes) {
    QString out;
    out.reserve(bytes.size());
    for (char b : bytes) {
        const auto code = static_cast<unsigned char>(b);
        if (code >= 0x80 && code <= 0x9F && kCp1252High[code - 0x80] != 0) {
            out.append(QChar(kCp1252High[code - 0x80]));
        } else {
            out.append(QChar(code));
        }
    }
    return out;
}

QString msTextNachHex(const QString& sText) {
    static const char digits[] = "0123456789abcdef";
    QString out;
    for (char b : toAnsi(sText)) {
        const auto code = static_cast<unsigned char>(b);
        out.append(QLatin1Char(digits[code >> 4]));
        out.append(QLatin1Char(digits[code & 0x0F]));
    }
    return out;
}

QString msHexNachText(const QString& sText) {
    static const QString digits = QStringLiteral("0123456789abcdef");
    QByteArray bytes;
    for (qsizetype i = 0; i < sText.size(); i += 2) {
        int value = 0;
        for (qsizetype j = i; j < i + 2 && j < sText.size(); ++j) {
            const qsizetype pos = digits.indexOf(sText.at(j).toLower());
            if (pos >= 0) {
                value = value * 16 + static_cast<int>(pos);
            }
        }
        bytes.append(static_cast<char>(value));
    }
    return fromAnsi(bytes);
}

QString msPasswortKodieren(const QString& sText, bool bKodieren) {
    if (bKodieren) {
        return reversed(msTextNachHex(sText));
    }
    return msHexNachText(reversed(sText));
}
