// The record set's translation of the server's dialect: any text is translated or refused
// with the record set's error, and its tokens always join to the text they came from.
#include <cstddef>
#include <cstdint>

#include "common/ErrObject.h"
#include "suite/SqlDialect.h"
#include "suite/SqlTokens.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString sql =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QString joined;
    for (const SqlToken& t : tokenizeSql(sql)) {
        joined += t.text;
    }
    if (joined != sql) {
        __builtin_trap();
    }
    try {
        const QString translated = SqlDialect::translate(sql);
        (void)SqlDialect::singleSource(translated);
        (void)SqlDialect::leadingKeyword(translated);
    } catch (const RaisedError&) {
    }
    return 0;
}
