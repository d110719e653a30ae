#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// The server's SQL dialect, as the system writes its statements, read by SQLite.
namespace SqlDialect {

// The database a statement is translated for.
enum class Target { Sqlite, Postgres };

// Translates one statement for SQLite: `select [distinct] top n` becomes a LIMIT, the `dbo.`
// prefix goes, the unit of datediff becomes a text ('day', 'week', ...), isnull becomes
// ifnull and N'...' a plain literal. getdate(), datediff and len are functions of the
// connection (SqlFunctions.h); bracketed names and `like` on numbers SQLite reads as they are.
// Nothing inside a literal, a quoted name or a comment is touched. A single trailing `;` is
// allowed; any statement after it throws RaisedError, so that nothing of the text runs.
QString translate(const QString& serverSql);
// The same, and with the moment of getdate() known: the history's period condition
// `datediff(<unit>, <column>, getdate()) <= <n>` becomes `<column> >= '<start>'`, the start
// of the unit n units before now, so that an index on the column serves it. The two select
// the same rows for dates stored as the system stores them (SqlDates.h). Only the condition
// standing alone between AND, OR, WHERE, ON or brackets is rewritten; every other datediff
// stays a function call.
QString translate(const QString& serverSql, const QDateTime& now);
// For PostgreSQL, on top of the above: a bracketed or quoted name becomes a quoted name in lower
// case (the schema's names are all folded to lower case), isnull becomes coalesce, and
// getdate() becomes the moment now as a timestamp literal, so that the program's clock holds
// on the server too. getdate, datediff and len are functions of the schema there.
QString translate(const QString& serverSql, const QDateTime& now, Target target);

// A select that reads from exactly one table or view by name, with no join, union, grouping
// or distinct, so that every row of its result is one row of that table.
struct SingleSource {
    QString name;         // as the database knows it, without brackets or quotes
    qsizetype columnsAt;  // position just behind the select keyword, where columns can be added
};
std::optional<SingleSource> singleSource(const QString& sqliteSql);

// The first keyword of the statement in lower case, empty when it starts otherwise.
QString leadingKeyword(const QString& sql);

}  // namespace SqlDialect
