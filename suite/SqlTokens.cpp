#include "suite/SqlTokens.h"

bool SqlToken::isWord(QStringView word) const {
    return kind == SqlTokenKind::Word && QStringView(text).compare(word, Qt::CaseInsensitive) == 0;
}

bool SqlToken::isPunct(QChar c) const {
    return kind == SqlTokenKind::Punct && text.size() == 1 && text.at(0) == c;
}

namespace {

bool isWordStart(QChar c) {
    return c.isLetter() || c == u'_' || c == u'@' || c == u'#';
}

bool isWordPart(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'@' || c == u'#' || c == u'$';
}

// End of a quoted piece that starts at `from` and closes with `close`; a doubled closing
// character stands for itself. An unclosed piece runs to the end of the text.
qsizetype quotedEnd(QStringView sql, qsizetype from, QChar close) {
    qsizetype i = from + 1;
    while (i < sql.size()) {
        if (sql[i] == close) {
            if (i + 1 < sql.size() && sql[i + 1] == close) {
                i += 2;
                continue;
            }
            return i + 1;
        }
        ++i;
    }
    return sql.size();
}

qsizetype numberEnd(QStringView sql, qsizetype from) {
    qsizetype i = from;
    while (i < sql.size()) {
        const QChar c = sql[i];
        if (c.isLetterOrNumber() || c == u'.' || c == u'_') {
            ++i;
        } else if ((c == u'+' || c == u'-') && (sql[i - 1] == u'e' || sql[i - 1] == u'E') &&
                   !sql.mid(from, i - from).startsWith(u"0x", Qt::CaseInsensitive)) {
            ++i;
        } else {
            break;
        }
    }
    return i;
}

}  // namespace

QList<SqlToken> tokenizeSql(QStringView sql) {
    QList<SqlToken> tokens;
    qsizetype i = 0;
    while (i < sql.size()) {
        const QChar c = sql[i];
        const QChar next = i + 1 < sql.size() ? sql[i + 1] : QChar();
        SqlTokenKind kind = SqlTokenKind::Punct;
        qsizetype end = i + 1;
        if (c.isSpace()) {
            kind = SqlTokenKind::Space;
            while (end < sql.size() && sql[end].isSpace()) {
                ++end;
            }
        } else if (c == u'-' && next == u'-') {
            kind = SqlTokenKind::Comment;
            end = sql.indexOf(u'\n', i);
            end = end < 0 ? sql.size() : end;
        } else if (c == u'/' && next == u'*') {
            kind = SqlTokenKind::Comment;
            end = sql.indexOf(u"*/", i + 2);
            end = end < 0 ? sql.size() : end + 2;
        } else if (c == u'\'') {
            kind = SqlTokenKind::String;
            end = quotedEnd(sql, i, u'\'');
        } else if (c == u'"' || c == u'`') {
            kind = SqlTokenKind::QuotedName;
            end = quotedEnd(sql, i, c);
        } else if (c == u'[') {
            kind = SqlTokenKind::QuotedName;
            end = quotedEnd(sql, i, u']');
        } else if (c.isDigit() || (c == u'.' && next.isDigit())) {
            kind = SqlTokenKind::Number;
            end = numberEnd(sql, i + 1);
        } else if (isWordStart(c)) {
            kind = SqlTokenKind::Word;
            while (end < sql.size() && isWordPart(sql[end])) {
                ++end;
            }
        }
        tokens.append(SqlToken{kind, sql.mid(i, end - i).toString()});
        i = end;
    }
    return tokens;
}

QString unquotedName(const SqlToken& token) {
    if (token.kind != SqlTokenKind::QuotedName || token.text.size() < 2) {
        return token.text;
    }
    const QChar open = token.text.front();
    const QChar close = open == u'[' ? QChar(u']') : open;
    QString inner = token.text.mid(1, token.text.size() - 2);
    return inner.replace(QString(2, close), QString(close));
}
