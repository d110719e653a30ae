// The server's CONTAINS on the log entries as each database searches its full-text index.
#include <gtest/gtest.h>

#include "suite/SqlFullText.h"

using SqlDialect::Target;

TEST(SqlFullText, ContainsOnTheLogBecomesAMatchOnSqliteAndATextSearchOnPostgresql) {
    const QString sql = QStringLiteral(
        "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ = "
        "2) AND (CONTAINS(SYS_JobAgentLogDaten_Anzeigen.*, N'\"März*\" AND \"o''k\"'))");
    // A quote inside a term is no term: the condition stays and the database refuses it.
    EXPECT_EQ(SqlFullText::rewrite(sql, Target::Sqlite), sql);

    const QString ok = QStringLiteral(
        "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ = "
        "2) AND (CONTAINS(SYS_JobAgentLogDaten_Anzeigen.*, N'\"März*\" AND \"42\"'))  ");
    EXPECT_EQ(SqlFullText::rewrite(ok, Target::Sqlite),
              QStringLiteral("SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE "
                             "(SYS_JobAgentLogDaten_Anzeigen.Typ = 2) AND "
                             "(SYS_JobAgentLogDaten_Anzeigen.Id IN (SELECT rowid FROM "
                             "SYS_JobAgentLogDaten_Suche WHERE SYS_JobAgentLogDaten_Suche MATCH "
                             "'\"März\"* AND \"42\"'))  "));
    EXPECT_EQ(SqlFullText::rewrite(ok, Target::Postgres),
              QStringLiteral(
                  "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE "
                  "(SYS_JobAgentLogDaten_Anzeigen.Typ = 2) AND (SYS_JobAgentLogDaten_Anzeigen.Id "
                  "= ANY (ARRAY(SELECT Id FROM SYS_JobAgentLogDaten WHERE to_tsvector('simple', "
                  "coalesce(Herkunft, '') || ' ' || coalesce(AuftragKennung, '') || ' ' || "
                  "coalesce(Kategorie, '') || ' ' || coalesce(Name, '') || ' ' || "
                  "coalesce(Text, '') || ' ' || coalesce(Zusatz, '')) @@ "
                  "to_tsquery('simple', '''März'':* & ''42'''))))  "));
}

TEST(SqlFullText, OnlyTheLogsContainsInItsFormIsTouched) {
    for (const char* sql : {
             // another table has no index
             "SELECT * FROM tAutoJobJob WHERE CONTAINS(tAutoJobJob.*, '\"a*\"')",
             // the call inside a text stays text
             "INSERT INTO SYS_JobAgentLogDaten (Text) VALUES ('CONTAINS(SYS_JobAgentLogDaten.*, "
             "''\"a*\"'')')",
             // a column instead of all columns
             "SELECT * FROM SYS_JobAgentLogDaten WHERE CONTAINS(Text, '\"a*\"')",
             "SELECT contains FROM x",
         }) {
        EXPECT_EQ(SqlFullText::rewrite(QString::fromUtf8(sql), Target::Sqlite),
                  QString::fromUtf8(sql));
    }
}
