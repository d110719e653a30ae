#include "suite/SqlDialect.h"

#include <QList>
#include <QSet>

#include "suite/SqlDates.h"
#include "suite/SqlErrors.h"
#include "suite/SqlTokens.h"

namespace SqlDialect {

namespace {

using Tokens = QList<SqlToken>;

qsizetype lastSignificantToken(const Tokens& tokens, qsizetype i) {
    for (--i; i >= 0; --i) {
        if (tokens[i].significant()) {
            return i;
        }
    }
    return -1;
}

qsizetype nextSignificant(const Tokens& tokens, qsizetype i) {
    for (++i; i < tokens.size(); ++i) {
        if (tokens[i].significant()) {
            return i;
        }
    }
    return -1;
}

bool isWordAt(const Tokens& tokens, qsizetype i, QStringView word) {
    return i >= 0 && i < tokens.size() && tokens[i].isWord(word);
}

bool isPunctAt(const Tokens& tokens, qsizetype i, QChar c) {
    return i >= 0 && i < tokens.size() && tokens[i].isPunct(c);
}

// Cuts the text at its first `;`; throws when a statement follows. Trailing blanks and
// comments go too, so that nothing can be appended into a comment.
Tokens firstStatement(const QString& sql) {
    Tokens tokens = tokenizeSql(sql);
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (tokens[i].isPunct(u';')) {
            if (nextSignificant(tokens, i) >= 0) {
                throw SqlErrors::moreThanOneStatement(sql);
            }
            tokens.resize(i);
            break;
        }
    }
    while (!tokens.isEmpty() && !tokens.back().significant()) {
        tokens.removeLast();
    }
    return tokens;
}

// `top n` or `top (n)` behind select [distinct|all] at index `top`: gives the count and the
// index of the last token of the clause.
std::optional<std::pair<QString, qsizetype>> topClause(const Tokens& tokens, qsizetype top) {
    if (!isWordAt(tokens, top, u"top")) {
        return std::nullopt;
    }
    qsizetype count = nextSignificant(tokens, top);
    if (count >= 0 && tokens[count].kind == SqlTokenKind::Number) {
        return std::pair{tokens[count].text, count};
    }
    if (!isPunctAt(tokens, count, u'(')) {
        return std::nullopt;
    }
    count = nextSignificant(tokens, count);
    const qsizetype close = count >= 0 ? nextSignificant(tokens, count) : -1;
    if (count >= 0 && tokens[count].kind == SqlTokenKind::Number &&
        isPunctAt(tokens, close, u')')) {
        return std::pair{tokens[count].text, close};
    }
    return std::nullopt;
}

// Words that may stand before a condition of its own, and behind one.
bool opensCondition(const Tokens& tokens, qsizetype i) {
    if (i < 0) {
        return true;
    }
    static const QSet<QString> words{"where", "and", "or", "on", "not", "when", "having"};
    return tokens[i].isPunct(u'(') ||
           (tokens[i].kind == SqlTokenKind::Word && words.contains(tokens[i].text.toLower()));
}

bool closesCondition(const Tokens& tokens, qsizetype i) {
    if (i < 0) {
        return true;
    }
    static const QSet<QString> words{"and",  "or",  "order", "group",  "limit",  "having",
                                     "then", "end", "union", "except", "window", "intersect"};
    return tokens[i].isPunct(u')') ||
           (tokens[i].kind == SqlTokenKind::Word && words.contains(tokens[i].text.toLower()));
}

struct PeriodCondition {
    DatePart part;
    QString column;  // as written, qualifier included
    qint64 count;    // the n of `<= n`
    qsizetype last;  // index of the token of n
};

// `datediff(<unit>, <column>, getdate()) <= <n>` from index `at`, standing alone as a condition.
std::optional<PeriodCondition> periodCondition(const Tokens& tokens, qsizetype at,
                                               qsizetype before) {
    if (!opensCondition(tokens, before)) {
        return std::nullopt;
    }
    qsizetype i = nextSignificant(tokens, at);
    auto step = [&]() { return i = i >= 0 ? nextSignificant(tokens, i) : -1; };
    if (!isPunctAt(tokens, i, u'(') || step() < 0 || tokens[i].kind != SqlTokenKind::Word) {
        return std::nullopt;
    }
    const auto part = datePartFromName(tokens[i].text);
    if (!part || !isPunctAt(tokens, step(), u',') || step() < 0) {
        return std::nullopt;
    }
    auto isName = [&](qsizetype k) {
        return k >= 0 &&
               (tokens[k].kind == SqlTokenKind::Word || tokens[k].kind == SqlTokenKind::QuotedName);
    };
    if (!isName(i)) {
        return std::nullopt;
    }
    QString column = tokens[i].text;
    if (isPunctAt(tokens, step(), u'.')) {
        if (!isName(step())) {
            return std::nullopt;
        }
        column += u'.' + tokens[i].text;
        step();
    }
    if (!isPunctAt(tokens, i, u',') || !isWordAt(tokens, step(), u"getdate") ||
        !isPunctAt(tokens, step(), u'(') || !isPunctAt(tokens, step(), u')') ||
        !isPunctAt(tokens, step(), u')') || !isPunctAt(tokens, step(), u'<') ||
        !isPunctAt(tokens, i + 1, u'=') || (i = i + 1, step() < 0) ||
        tokens[i].kind != SqlTokenKind::Number) {
        return std::nullopt;
    }
    bool whole = false;
    const qint64 count = tokens[i].text.toLongLong(&whole);
    if (!whole || count > 100000 || !closesCondition(tokens, nextSignificant(tokens, i))) {
        return std::nullopt;
    }
    return PeriodCondition{*part, column, count, i};
}

// The start as a literal that compares with stored date texts as the dates compare. A start at
// midnight goes without its time, so that a date stored without a time still counts on that day.
QString startLiteral(const QDateTime& start) {
    return u'\'' +
           start.toString(start.time() == QTime(0, 0) ? QStringLiteral("yyyy-MM-dd")
                                                      : QStringLiteral("yyyy-MM-dd HH:mm:ss")) +
           u'\'';
}

QString translateTokens(const Tokens& tokens, const std::optional<QDateTime>& now, Target target);

}  // namespace

QString translate(const QString& serverSql) {
    return translateTokens(firstStatement(serverSql), std::nullopt, Target::Sqlite);
}

QString translate(const QString& serverSql, const QDateTime& now) {
    return translateTokens(firstStatement(serverSql), now, Target::Sqlite);
}

QString translate(const QString& serverSql, const QDateTime& now, Target target) {
    return translateTokens(firstStatement(serverSql), now, target);
}

namespace {

QString translateTokens(const Tokens& tokens, const std::optional<QDateTime>& now, Target target) {
    const bool postgres = target == Target::Postgres;
    QList<QString> pieces;
    for (const SqlToken& t : tokens) {
        pieces.append(t.text);
    }
    struct Limit {
        int depth;
        QString count;
    };
    QList<Limit> limits;
    int depth = 0;
    qsizetype lastSignificant = -1;
    auto closeLimits = [&](int atDepth) {
        while (!limits.isEmpty() && limits.back().depth == atDepth) {
            if (lastSignificant >= 0) {
                pieces[lastSignificant] += QStringLiteral(" LIMIT ") + limits.back().count;
            }
            limits.removeLast();
        }
    };

    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const SqlToken& t = tokens[i];
        if (!t.significant()) {
            continue;
        }
        const qsizetype next = nextSignificant(tokens, i);
        if (t.isPunct(u'(')) {
            ++depth;
        } else if (t.isPunct(u')')) {
            closeLimits(depth);
            --depth;
        } else if (t.isWord(u"select")) {
            const bool quantified =
                isWordAt(tokens, next, u"distinct") || isWordAt(tokens, next, u"all");
            const qsizetype top = quantified ? nextSignificant(tokens, next) : next;
            if (const auto clause = topClause(tokens, top)) {
                qsizetype end = clause->second;
                if (end + 1 < tokens.size() && tokens[end + 1].kind == SqlTokenKind::Space) {
                    ++end;
                }
                for (qsizetype k = top; k <= end; ++k) {
                    pieces[k].clear();
                }
                limits.append(Limit{depth, clause->first});
                lastSignificant = i;
                i = end;
                continue;
            }
        } else if ((t.isWord(u"dbo") || t.text.compare(u"[dbo]", Qt::CaseInsensitive) == 0) &&
                   i + 1 < tokens.size() && tokens[i + 1].isPunct(u'.') &&
                   !isPunctAt(tokens, i - 1, u'.')) {
            pieces[i].clear();
            pieces[i + 1].clear();
            ++i;
            continue;
        } else if (t.isWord(u"datediff") && isPunctAt(tokens, next, u'(')) {
            if (const auto period =
                    now ? periodCondition(tokens, i, lastSignificantToken(tokens, i))
                        : std::nullopt) {
                pieces[i] = period->column + QStringLiteral(" >= ") +
                            startLiteral(startOfUnitsBefore(period->part, *now, period->count));
                for (qsizetype k = i + 1; k <= period->last; ++k) {
                    pieces[k].clear();
                }
                lastSignificant = i;
                i = period->last;
                continue;
            }
            const qsizetype unit = nextSignificant(tokens, next);
            if (unit >= 0 && tokens[unit].kind == SqlTokenKind::Word) {
                if (const auto part = datePartFromName(tokens[unit].text)) {
                    pieces[unit] = u'\'' + datePartName(*part) + u'\'';
                }
            }
        } else if (t.isWord(u"isnull") && isPunctAt(tokens, next, u'(')) {
            pieces[i] = postgres ? QStringLiteral("coalesce") : QStringLiteral("ifnull");
        } else if (postgres && t.kind == SqlTokenKind::QuotedName) {
            pieces[i] =
                u'"' + unquotedName(t).toLower().replace(u'"', QStringLiteral("\"\"")) + u'"';
        } else if (postgres && now && t.isWord(u"getdate") && isPunctAt(tokens, next, u'(') &&
                   isPunctAt(tokens, nextSignificant(tokens, next), u')')) {
            const qsizetype close = nextSignificant(tokens, next);
            pieces[i] = QStringLiteral("timestamp '") +
                        now->toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + u'\'';
            for (qsizetype k = i + 1; k <= close; ++k) {
                pieces[k].clear();
            }
            lastSignificant = i;
            i = close;
            continue;
        } else if (t.isWord(u"n") && i + 1 < tokens.size() &&
                   tokens[i + 1].kind == SqlTokenKind::String) {
            pieces[i].clear();
        }
        lastSignificant = t.isPunct(u')') ? i : (pieces[i].isEmpty() ? lastSignificant : i);
    }
    closeLimits(0);
    return pieces.join(QString());
}

}  // namespace

std::optional<SingleSource> singleSource(const QString& sqliteSql) {
    const Tokens all = tokenizeSql(sqliteSql);
    Tokens sig;
    qsizetype columnsAt = -1;
    qsizetype offset = 0;
    for (const SqlToken& t : all) {
        offset += t.text.size();
        if (t.significant()) {
            sig.append(t);
            if (columnsAt < 0) {
                columnsAt = offset;
            }
        }
    }
    if (sig.isEmpty() || !sig[0].isWord(u"select") || sig.size() < 2 ||
        sig[1].isWord(u"distinct") || sig[1].isWord(u"all")) {
        return std::nullopt;
    }
    static const QSet<QString> compound{"union", "except", "intersect",
                                        "group", "window", "values"};
    // An aggregate in the column list makes one row of many.
    static const QSet<QString> aggregates{"count", "sum",   "min",          "max",
                                          "avg",   "total", "group_concat", "string_agg"};
    qsizetype from = -1;
    int depth = 0;
    for (qsizetype i = 1; i < sig.size(); ++i) {
        const SqlToken& t = sig[i];
        if (t.isPunct(u'(')) {
            ++depth;
        } else if (t.isPunct(u')')) {
            --depth;
        } else if (depth == 0 && t.kind == SqlTokenKind::Word) {
            if (compound.contains(t.text.toLower())) {
                return std::nullopt;
            }
            if (from < 0 && i + 1 < sig.size() && sig[i + 1].isPunct(u'(') &&
                aggregates.contains(t.text.toLower())) {
                return std::nullopt;
            }
            if (from < 0 && t.isWord(u"from")) {
                from = i;
            }
        }
    }
    auto isName = [&](qsizetype i) {
        return i < sig.size() &&
               (sig[i].kind == SqlTokenKind::Word || sig[i].kind == SqlTokenKind::QuotedName);
    };
    if (from < 0 || !isName(from + 1)) {
        return std::nullopt;
    }
    qsizetype i = from + 1;
    if (i + 2 < sig.size() && sig[i + 1].isPunct(u'.') && isName(i + 2)) {
        i += 2;  // schema.table
    }
    const QString name = unquotedName(sig[i]);
    ++i;
    static const QSet<QString> clauses{"where", "order",   "limit", "join",    "inner", "left",
                                       "right", "full",    "cross", "natural", "outer", "on",
                                       "using", "indexed", "not",   "as"};
    if (isWordAt(sig, i, u"as")) {
        ++i;
    }
    if (isName(i) &&
        !(sig[i].kind == SqlTokenKind::Word && clauses.contains(sig[i].text.toLower()))) {
        ++i;  // alias
    }
    if (i < sig.size() && !sig[i].isWord(u"where") && !sig[i].isWord(u"order") &&
        !sig[i].isWord(u"limit")) {
        return std::nullopt;
    }
    return SingleSource{name, columnsAt};
}

QString leadingKeyword(const QString& sql) {
    for (const SqlToken& t : tokenizeSql(sql)) {
        if (t.significant()) {
            return t.kind == SqlTokenKind::Word ? t.text.toLower() : QString();
        }
    }
    return {};
}

}  // namespace SqlDialect
