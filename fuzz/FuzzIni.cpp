// The suite's ini file: any bytes, read as the program reads them.
#include <cstddef>
#include <cstdint>

#include "suite/IniFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const IniFile ini =
        IniFile::parse(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    for (const QString& section : {QStringLiteral("Pfade"), QStringLiteral("Suite")}) {
        for (const QString& key : ini.keys(section)) {
            (void)ini.value(section, key);
        }
    }
    (void)ini.value(QStringLiteral("Pfade"), QStringLiteral("Logfile"));
    return 0;
}
