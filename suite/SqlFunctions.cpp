#include "suite/SqlFunctions.h"

#include <sqlite3.h>

#include <QHash>
#include <QString>

#include "common/Clock.h"
#include "suite/SqlDates.h"

namespace {

QString textArgument(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

void resultError(sqlite3_context* ctx, const QString& message) {
    const QByteArray text = message.toUtf8();
    sqlite3_result_error(ctx, text.constData(), static_cast<int>(text.size()));
}

void getdate(sqlite3_context* ctx, int, sqlite3_value**) {
    const auto* clock = static_cast<const IClock*>(sqlite3_user_data(ctx));
    const QByteArray text = storedDateText(clock->now()).toUtf8();
    sqlite3_result_text(ctx, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

std::optional<QDateTime> dateArgument(sqlite3_value* value) {
    if (sqlite3_value_type(value) == SQLITE_TEXT) {
        const QString text = textArgument(value);
        if (auto date = parseDateText(text)) {
            return date;
        }
        bool isNumber = false;
        const double days = text.trimmed().toDouble(&isNumber);
        return isNumber ? std::optional(dateFromDayNumber(days)) : std::nullopt;
    }
    return dateFromDayNumber(sqlite3_value_double(value));
}

void datediff(sqlite3_context* ctx, int, sqlite3_value** argv) {
    for (int i = 0; i < 3; ++i) {
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL) {
            sqlite3_result_null(ctx);
            return;
        }
    }
    const QString unit = textArgument(argv[0]);
    const auto part = datePartFromName(unit);
    if (!part) {
        resultError(ctx, QStringLiteral("datediff: unbekannte Einheit '%1'").arg(unit));
        return;
    }
    const auto a = dateArgument(argv[1]);
    const auto b = dateArgument(argv[2]);
    if (!a || !b) {
        resultError(ctx, QStringLiteral("datediff: '%1' ist kein Datum")
                             .arg(textArgument(!a ? argv[1] : argv[2])));
        return;
    }
    sqlite3_result_int64(ctx, dateDiff(*part, *a, *b));
}

void len(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    QString text = textArgument(argv[0]);
    qsizetype n = text.size();
    while (n > 0 && text.at(n - 1) == u' ') {
        --n;
    }
    sqlite3_result_int64(ctx, n);
}

// The server compares texts without regard to case, umlauts included, and without trailing
// blanks; SQLite's own NOCASE folds only A to Z.
QString ohneFolgeleerzeichen(const void* data, int bytes) {
    QString text = QString::fromUtf8(static_cast<const char*>(data), bytes);
    qsizetype n = text.size();
    while (n > 0 && text.at(n - 1) == u' ') {
        --n;
    }
    text.truncate(n);
    return text;
}

int nocase(void*, int bytesA, const void* a, int bytesB, const void* b) {
    return QString::compare(ohneFolgeleerzeichen(a, bytesA), ohneFolgeleerzeichen(b, bytesB),
                            Qt::CaseInsensitive);
}

// The connection's own settings, as the server keeps them per session: the change journal's
// triggers read who writes, from where and why.
using Settings = QHash<QString, QString>;

void setConfig(sqlite3_context* ctx, int, sqlite3_value** argv) {
    auto* settings = static_cast<Settings*>(sqlite3_user_data(ctx));
    const QString value = textArgument(argv[1]);
    settings->insert(textArgument(argv[0]), value);
    const QByteArray text = value.toUtf8();
    sqlite3_result_text(ctx, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void currentSetting(sqlite3_context* ctx, int, sqlite3_value** argv) {
    const auto* settings = static_cast<const Settings*>(sqlite3_user_data(ctx));
    const auto found = settings->constFind(textArgument(argv[0]));
    if (found == settings->constEnd()) {
        sqlite3_result_null(ctx);
        return;
    }
    const QByteArray text = found->toUtf8();
    sqlite3_result_text(ctx, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void deleteSettings(void* settings) {
    delete static_cast<Settings*>(settings);
}

}  // namespace

int registerServerFunctions(sqlite3* db, const IClock* clock) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    void* clockData = const_cast<IClock*>(clock);
    int rc = sqlite3_create_function_v2(db, "getdate", 0, SQLITE_UTF8, clockData, getdate, nullptr,
                                        nullptr, nullptr);
    if (rc == SQLITE_OK) {
        rc = sqlite3_create_function_v2(db, "datediff", 3, pure, nullptr, datediff, nullptr,
                                        nullptr, nullptr);
    }
    if (rc == SQLITE_OK) {
        rc =
            sqlite3_create_function_v2(db, "len", 1, pure, nullptr, len, nullptr, nullptr, nullptr);
    }
    if (rc == SQLITE_OK) {
        rc = sqlite3_create_collation_v2(db, "NOCASE", SQLITE_UTF8, nullptr, nocase, nullptr);
    }
    if (rc == SQLITE_OK) {
        // current_setting is registered first: the settings go with set_config, dropped last.
        auto* settings = new Settings;
        rc = sqlite3_create_function_v2(db, "current_setting", 2, SQLITE_UTF8, settings,
                                        currentSetting, nullptr, nullptr, nullptr);
        if (rc != SQLITE_OK) {
            delete settings;
        } else {
            rc = sqlite3_create_function_v2(db, "set_config", 3, SQLITE_UTF8, settings, setConfig,
                                            nullptr, nullptr, deleteSettings);
        }
    }
    return rc;
}
