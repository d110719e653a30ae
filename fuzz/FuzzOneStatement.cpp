// Exactly one statement per call: whatever text reaches the record set, a text of several
// statements is refused as a whole and nothing of it runs.
#include <cstddef>
#include <cstdint>

#include <QCoreApplication>

#include "common/Clock.h"
#include "common/ErrObject.h"
#include "suite/Database.h"
#include "suite/SqlTokens.h"

namespace {

// More than one statement: a significant token after a ';' that ends the first.
bool severalStatements(const QString& sql) {
    bool ended = false;
    for (const SqlToken& t : tokenizeSql(sql)) {
        if (!t.significant()) {
            continue;
        }
        if (t.isPunct(u';')) {
            ended = true;
        } else if (ended) {
            return true;
        }
    }
    return false;
}

QString sentinel(Database& db) {
    auto rs = db.recordsetFactory()();
    rs->Connect();
    QString text;
    if (rs->OpenQuery(QStringLiteral("select Wert from tWache"), 2) >= 1) {
        text = rs->ReadText(QStringLiteral("Wert"));
    }
    rs->Close();
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static int argc = 1;
    static char name[] = "fuzz_one_statement";
    static char* argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);

    const QString sql =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (!severalStatements(sql)) {
        return 0;
    }
    auto db = Database::open(QStringLiteral(":memory:"), std::make_shared<SystemClock>());
    db->runScript(
        QStringLiteral("CREATE TABLE tWache (Wert TEXT); "
                       "INSERT INTO tWache (Wert) VALUES ('da');"));
    for (int call = 0; call < 2; ++call) {
        bool refused = false;
        try {
            auto rs = db->recordsetFactory()();
            rs->Connect();
            if (call == 0) {
                rs->Execute(sql);
            } else {
                rs->OpenQuery(sql, 2);
            }
        } catch (const RaisedError&) {
            refused = true;
        }
        if (!refused || sentinel(*db) != QLatin1String("da")) {
            __builtin_trap();
        }
    }
    return 0;
}
