#include "common/ColumnLimits.h"

namespace ColumnLimits {

qsizetype characters(const QString& text) {
    qsizetype n = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!(text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate())) {
            ++n;
        }
    }
    return n;
}

QString leftCharacters(const QString& text, qsizetype n) {
    qsizetype taken = 0;
    qsizetype i = 0;
    while (i < text.size() && taken < n) {
        i += text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2
                                                                                              : 1;
        ++taken;
    }
    return text.left(i);
}

}  // namespace ColumnLimits
