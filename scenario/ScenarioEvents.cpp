#include "scenario/ScenarioEvents.h"

#include <QRegularExpression>

#include "scenario/ScenarioSyntax.h"

void ScenarioEvents::add(Kind kind, const QString& text, const QString& detail) {
    list(kind) << Entry{text, detail, lineSource_ ? lineSource_() : 0};
}

std::optional<ScenarioEvents::Entry> ScenarioEvents::take(Kind kind) {
    QList<Entry>& l = list(kind);
    if (l.isEmpty()) {
        return std::nullopt;
    }
    return l.takeFirst();
}

std::optional<std::pair<ScenarioEvents::Entry, QString>> ScenarioEvents::firstUnchecked() const {
    std::optional<std::pair<Entry, QString>> first;
    auto consider = [&](const QList<Entry>& l, const QString& what) {
        if (!l.isEmpty() && (!first || l.first().line < first->first.line)) {
            QString reason = what + QLatin1Char(' ') + quoteText(l.first().text);
            if (!l.first().detail.isEmpty()) {
                reason += QStringLiteral(" (") + l.first().detail + QLatin1Char(')');
            }
            first = std::make_pair(l.first(), reason + QStringLiteral(" was not checked"));
        }
    };
    consider(shell_, QStringLiteral("the program start"));
    consider(help_, QStringLiteral("the help call"));
    consider(errors_, QStringLiteral("the error report from"));
    consider(viewer_, QStringLiteral("the booking log viewer's use"));
    return first;
}

QList<ScenarioEvents::Entry>& ScenarioEvents::list(Kind kind) {
    switch (kind) {
        case Kind::Shell:
            return shell_;
        case Kind::Help:
            return help_;
        case Kind::Viewer:
            return viewer_;
        case Kind::Error:
            break;
    }
    return errors_;
}

QString errorProcedure(const QString& source) {
    QString last = source.mid(source.lastIndexOf(QStringLiteral("\r\n")) + 1).trimmed();
    static const QRegularExpression zeile(QStringLiteral(" \\(Zeile \\d+\\)$"));
    last.remove(zeile);
    return last.mid(last.lastIndexOf(u'.') + 1);
}
