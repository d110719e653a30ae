#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// The pieces of an SQL text as the server and SQLite both read it. Every token keeps its text
// exactly, so joining the tokens gives the statement back unchanged.
enum class SqlTokenKind {
    Space,
    Comment,  // -- to the end of the line, or /* ... */
    Word,     // keyword or plain name
    Number,
    String,      // '...' with '' inside
    QuotedName,  // "...", [...] or `...`
    Punct,       // any other single character: ( ) , . ; = < > + - * / ...
};

struct SqlToken {
    SqlTokenKind kind;
    QString text;

    // Blanks and comments carry no meaning for the statement.
    bool significant() const {
        return kind != SqlTokenKind::Space && kind != SqlTokenKind::Comment;
    }
    // A keyword or plain name, compared without regard to case.
    bool isWord(QStringView word) const;
    bool isPunct(QChar c) const;
};

QList<SqlToken> tokenizeSql(QStringView sql);

// A name as the database knows it: brackets and quotes taken off.
QString unquotedName(const SqlToken& token);
