#pragma once

#include <QString>

#include "suite/SqlDialect.h"

// The server's full-text condition `CONTAINS(<table or view>.*, '"wort*" AND "zwei*"')` on
// the databases the program runs on. Each term is a word in double quotes, with a trailing *
// for every word that begins so; the terms are joined by AND. Only the log entries carry a
// full-text index (their texts: source, job identifier, category, name, text and addition):
// on SQLite an FTS5 table that triggers keep, on PostgreSQL a GIN index on the words of the
// texts. A CONTAINS on anything else, or in another form, stays as it stands and the database
// refuses it.
namespace SqlFullText {

QString rewrite(const QString& serverSql, SqlDialect::Target target);

}  // namespace SqlFullText
