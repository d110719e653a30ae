#include "scenario/ScenarioSyntax.h"

#include "scenario/ScenarioError.h"

namespace {

// Reads a quoted text that starts at pos (the opening quote); pos ends behind the closing one.
QString readQuoted(const QString& s, qsizetype& pos) {
    QString out;
    ++pos;
    while (pos < s.size()) {
        const QChar c = s.at(pos);
        if (c == u'"') {
            ++pos;
            return out;
        }
        if (c == u'\\') {
            if (pos + 1 >= s.size()) {
                break;
            }
            const QChar e = s.at(pos + 1);
            switch (e.unicode()) {
                case '"':
                    out += u'"';
                    break;
                case '\\':
                    out += u'\\';
                    break;
                case 'r':
                    out += u'\r';
                    break;
                case 'n':
                    out += u'\n';
                    break;
                case 't':
                    out += u'\t';
                    break;
                default:
                    scenarioFail(QStringLiteral("unknown escape \\%1 in a text").arg(e));
            }
            pos += 2;
            continue;
        }
        out += c;
        ++pos;
    }
    scenarioFail(QStringLiteral("a text in double quotes is not closed"));
}

QList<PathArg> readArgs(const QString& s, qsizetype& pos) {
    // pos stands on '('.
    QList<PathArg> args;
    ++pos;
    QString current;
    bool quoted = false;
    bool any = false;
    auto finish = [&] {
        const QString trimmed = quoted ? current : current.trimmed();
        if (!quoted && trimmed.isEmpty()) {
            scenarioFail(QStringLiteral("an empty argument in parentheses"));
        }
        args << PathArg{trimmed, quoted};
        current.clear();
        quoted = false;
    };
    while (pos < s.size()) {
        const QChar c = s.at(pos);
        if (c == u'"') {
            if (quoted || !current.trimmed().isEmpty()) {
                scenarioFail(QStringLiteral("a quoted argument must stand alone"));
            }
            current = readQuoted(s, pos);
            quoted = true;
            any = true;
            continue;
        }
        if (c == u')') {
            ++pos;
            if (any || !current.trimmed().isEmpty()) {
                finish();
            }
            return args;
        }
        if (c == u',') {
            finish();
            ++pos;
            continue;
        }
        if (quoted && !c.isSpace()) {
            scenarioFail(QStringLiteral("a quoted argument must stand alone"));
        }
        current += c;
        if (!c.isSpace()) {
            any = true;
        }
        ++pos;
    }
    scenarioFail(QStringLiteral("parentheses are not closed"));
}

}  // namespace

QList<Token> tokenizeLine(const QString& line) {
    QList<Token> tokens;
    qsizetype pos = 0;
    while (pos < line.size()) {
        if (line.at(pos).isSpace()) {
            ++pos;
            continue;
        }
        Token token;
        const qsizetype start = pos;
        int quotedPieces = 0;
        bool plainPieces = false;
        while (pos < line.size() && !line.at(pos).isSpace()) {
            if (line.at(pos) == u'"') {
                token.text += readQuoted(line, pos);
                ++quotedPieces;
            } else {
                token.text += line.at(pos);
                plainPieces = true;
                ++pos;
            }
        }
        token.raw = line.mid(start, pos - start);
        token.quoted = quotedPieces == 1 && !plainPieces;
        tokens << token;
    }
    return tokens;
}

int PathArg::number() const {
    bool ok = false;
    const int n = text.toInt(&ok);
    if (quoted || !ok) {
        scenarioFail(QStringLiteral("%1 is no whole number").arg(quoted ? quoteText(text) : text));
    }
    return n;
}

QString PathPart::display() const {
    QString out = quoted ? quoteText(name) : name;
    if (args) {
        QStringList shown;
        for (const PathArg& a : *args) {
            shown << (a.quoted ? quoteText(a.text) : a.text);
        }
        out += u'(' + shown.join(u',') + u')';
    }
    return out;
}

QList<PathPart> parsePath(const QString& raw) {
    QList<PathPart> parts;
    qsizetype pos = 0;
    while (true) {
        PathPart part;
        if (pos < raw.size() && raw.at(pos) == u'"') {
            part.name = readQuoted(raw, pos);
            part.quoted = true;
        } else {
            while (pos < raw.size() && raw.at(pos) != u'.' && raw.at(pos) != u'(' &&
                   raw.at(pos) != u'"') {
                part.name += raw.at(pos);
                ++pos;
            }
        }
        if (part.name.isEmpty()) {
            scenarioFail(QStringLiteral("the path %1 has an empty part").arg(raw));
        }
        if (pos < raw.size() && raw.at(pos) == u'(') {
            part.args = readArgs(raw, pos);
        }
        parts << part;
        if (pos >= raw.size()) {
            return parts;
        }
        if (raw.at(pos) != u'.') {
            scenarioFail(QStringLiteral("the path %1 is not of the form window.control").arg(raw));
        }
        ++pos;
    }
}

QString quoteText(const QString& text) {
    QString out = QStringLiteral("\"");
    for (const QChar c : text) {
        switch (c.unicode()) {
            case '"':
                out += QStringLiteral("\\\"");
                break;
            case '\\':
                out += QStringLiteral("\\\\");
                break;
            case '\r':
                out += QStringLiteral("\\r");
                break;
            case '\n':
                out += QStringLiteral("\\n");
                break;
            case '\t':
                out += QStringLiteral("\\t");
                break;
            default:
                out += c;
        }
    }
    return out + u'"';
}
