#include "suite/SqlFullText.h"

#include <QRegularExpression>
#include <QStringList>

#include "suite/SqlTokens.h"

namespace {

// The texts of a log entry, as the index holds them.
const QString kLogTexte = QStringLiteral(
    "coalesce(Herkunft, '') || ' ' || coalesce(AuftragKennung, '') || ' ' || "
    "coalesce(Kategorie, '') || ' ' || coalesce(Name, '') || ' ' || coalesce(Text, '') || ' ' "
    "|| coalesce(Zusatz, '')");

bool logTable(const QString& name) {
    return name.compare(QStringLiteral("SYS_JobAgentLogDaten_Anzeigen"), Qt::CaseInsensitive) ==
               0 ||
           name.compare(QStringLiteral("SYS_JobAgentLogDaten"), Qt::CaseInsensitive) == 0;
}

struct Term {
    QString word;
    bool prefix = false;
};

// '"wort*" AND "zwei"' as its terms; nothing when the text has another form.
QList<Term> terms(const QString& query) {
    static const QRegularExpression term(QStringLiteral("^\"([^\"*]+)(\\*?)\"$"));
    QList<Term> result;
    for (const QString& part : query.split(QRegularExpression(
             QStringLiteral("\\s+AND\\s+"), QRegularExpression::CaseInsensitiveOption))) {
        const QRegularExpressionMatch m = term.match(part.trimmed());
        if (!m.hasMatch() || m.captured(1).contains(u'\'')) {
            return {};
        }
        result << Term{m.captured(1), !m.captured(2).isEmpty()};
    }
    return result;
}

QString literal(const QString& text) {
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString condition(const QString& table, const QList<Term>& query, SqlDialect::Target target) {
    QStringList parts;
    if (target == SqlDialect::Target::Postgres) {
        for (const Term& t : query) {
            // Each word of the typed text, as text search's simple configuration reads it.
            for (const QString& w : t.word.split(u' ', Qt::SkipEmptyParts)) {
                parts << u'\'' + QString(w).replace(u'\\', QStringLiteral("\\\\")) + u'\'' +
                             (t.prefix ? QStringLiteral(":*") : QString());
            }
        }
        // The hits' ids as one array, found once through the index: as a join the planner
        // would walk the whole table in the browser's order and test every entry's words.
        return QStringLiteral(
                   "%1.Id = ANY (ARRAY(SELECT Id FROM SYS_JobAgentLogDaten WHERE "
                   "to_tsvector('simple', %2) @@ to_tsquery('simple', %3)))")
            .arg(table, kLogTexte, literal(parts.join(QStringLiteral(" & "))));
    }
    for (const Term& t : query) {
        parts << u'"' + t.word + u'"' + (t.prefix ? QStringLiteral("*") : QString());
    }
    return QStringLiteral(
               "%1.Id IN (SELECT rowid FROM SYS_JobAgentLogDaten_Suche WHERE "
               "SYS_JobAgentLogDaten_Suche MATCH %2)")
        .arg(table, literal(parts.join(QStringLiteral(" AND "))));
}

}  // namespace

namespace SqlFullText {

QString rewrite(const QString& serverSql, SqlDialect::Target target) {
    if (!serverSql.contains(QStringLiteral("contains"), Qt::CaseInsensitive)) {
        return serverSql;
    }
    const QList<SqlToken> tokens = tokenizeSql(serverSql);
    // The significant tokens' positions, to match the call's form on.
    QList<qsizetype> at;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (tokens[i].significant()) {
            at << i;
        }
    }
    QString out;
    qsizetype next = 0;  // the first token not yet written
    for (qsizetype k = 0; k + 7 < at.size(); ++k) {
        const SqlToken& word = tokens[at[k]];
        if (!word.isWord(u"contains") || !tokens[at[k + 1]].isPunct(u'(')) {
            continue;
        }
        const SqlToken& name = tokens[at[k + 2]];
        qsizetype j = k + 3;
        const bool dot = tokens[at[j]].isPunct(u'.') && tokens[at[j + 1]].isPunct(u'*');
        j += 2;
        if (!dot || !tokens[at[j]].isPunct(u',')) {
            continue;
        }
        ++j;
        if (tokens[at[j]].isWord(u"N") && j + 1 < at.size()) {
            ++j;
        }
        if (j + 1 >= at.size() || tokens[at[j]].kind != SqlTokenKind::String ||
            !tokens[at[j + 1]].isPunct(u')') || !logTable(unquotedName(name))) {
            continue;
        }
        QString text = tokens[at[j]].text;
        text = text.mid(1, text.size() - 2).replace(QStringLiteral("''"), QStringLiteral("'"));
        const QList<Term> query = terms(text);
        if (query.isEmpty()) {
            continue;
        }
        for (qsizetype i = next; i < at[k]; ++i) {
            out += tokens[i].text;
        }
        out += condition(name.text, query, target);
        next = at[j + 1] + 1;
        k = j + 1;
    }
    if (next == 0) {
        return serverSql;
    }
    for (qsizetype i = next; i < tokens.size(); ++i) {
        out += tokens[i].text;
    }
    return out;
}

}  // namespace SqlFullText
