#include "suite/PostgresAddress.h"

#include <QRegularExpression>
#include <QUrl>

#include "suite/SqlErrors.h"

namespace {

RaisedError unreadable(const QString& text, const QString& why) {
    return SqlErrors::raised(
        ErrNumber::Database,
        QStringLiteral("Die Datenbankadresse %1 ist ungültig: %2").arg(text, why));
}

// A password on the command line or in a configuration file is readable by everyone who can
// list processes or read the file.
RaisedError passwordInAddress() {
    return SqlErrors::raised(
        ErrNumber::Database,
        QStringLiteral("Die Datenbankadresse enthält ein Kennwort. Bitte geben Sie es nicht in "
                       "der Adresse an, sondern in der Kennwortdatei von PostgreSQL (~/.pgpass) "
                       "oder in der Umgebungsvariablen PGPASSWORD."));
}

QString decoded(const QString& part) {
    return QUrl::fromPercentEncoding(part.toUtf8());
}

}  // namespace

bool PostgresAddress::isAddress(const QString& text) {
    return text.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive) ||
           text.startsWith(QLatin1String("postgres://"), Qt::CaseInsensitive);
}

PostgresAddress PostgresAddress::parse(const QString& text) {
    if (!isAddress(text)) {
        throw unreadable(text, QStringLiteral("sie beginnt nicht mit postgresql://"));
    }
    PostgresAddress a;
    QString rest = text.mid(text.indexOf(QLatin1String("://")) + 3);
    QString query;
    if (const qsizetype q = rest.indexOf(u'?'); q >= 0) {
        query = rest.mid(q + 1);
        rest.truncate(q);
    }
    QString authority = rest;
    if (const qsizetype slash = rest.indexOf(u'/'); slash >= 0) {
        authority = rest.left(slash);
        a.database = decoded(rest.mid(slash + 1));
    }
    if (const qsizetype at = authority.lastIndexOf(u'@'); at >= 0) {
        const QString userInfo = authority.left(at);
        authority = authority.mid(at + 1);
        if (userInfo.contains(u':')) {
            throw passwordInAddress();
        }
        a.user = decoded(userInfo);
    }
    QString portText;
    if (authority.startsWith(u'[')) {
        const qsizetype close = authority.indexOf(u']');
        if (close < 0) {
            throw unreadable(text, QStringLiteral("die Klammer um den Rechner schließt nicht"));
        }
        a.host = authority.mid(1, close - 1);
        portText = authority.mid(close + 1).section(u':', 1);
    } else if (const qsizetype colon = authority.lastIndexOf(u':'); colon >= 0) {
        a.host = decoded(authority.left(colon));
        portText = authority.mid(colon + 1);
    } else {
        a.host = decoded(authority);
    }
    auto setPort = [&](const QString& value) {
        bool ok = false;
        const int port = value.toInt(&ok);
        if (!ok || port <= 0 || port > 65535) {
            throw unreadable(text, QStringLiteral("der Port %1 ist keine Portnummer").arg(value));
        }
        a.port = port;
    };
    if (!portText.isEmpty()) {
        setPort(portText);
    }
    for (const QString& pair : query.split(u'&', Qt::SkipEmptyParts)) {
        const QString key = decoded(pair.section(u'=', 0, 0));
        const QString value = decoded(pair.section(u'=', 1));
        if (key == u"host") {
            a.host = value;
        } else if (key == u"port") {
            setPort(value);
        } else if (key == u"user") {
            a.user = value;
        } else if (key == u"dbname") {
            a.database = value;
        } else if (key == u"password") {
            throw passwordInAddress();
        } else if (!key.isEmpty()) {
            a.options << key + u'=' + value;
        }
    }
    return a;
}

QString PostgresAddress::withoutPassword(const QString& text) {
    static const QRegularExpression inUserInfo(QStringLiteral("^([a-z]+://[^/@:?]*):[^@/?]*@"),
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression inQuery(QStringLiteral("([?&]password=)[^&]*"),
                                            QRegularExpression::CaseInsensitiveOption);
    return QString(text)
        .replace(inUserInfo, QStringLiteral("\\1:***@"))
        .replace(inQuery, QStringLiteral("\\1***"));
}
