// An import script (*.opt): any bytes give entries or the reader's error, nothing else.
#include <cstddef>
#include <cstdint>

#include "common/ErrObject.h"
#include "suite/OptionFileReaderText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        const auto entries = TextOptionFileReader::parse(
            QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)),
            QStringLiteral("fuzz.opt"));
        for (const OptionFileEntry& e : entries) {
            if (e.TableName.isEmpty()) {
                __builtin_trap();  // a script never gives an entry without a table
            }
        }
    } catch (const RaisedError&) {
    }
    return 0;
}
