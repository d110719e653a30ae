#include "common/CommandLine.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kBreite = 79;
constexpr int kEinzug = 2;
// The names column grows with the longest names up to this width; longer names stand on a
// line of their own.
constexpr int kNamenBreiteMax = 36;

QString optionName(const QString& sName) {
    return (sName.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + sName;
}

QString namen(const QCommandLineOption& option) {
    QStringList teile;
    for (const QString& name : option.names()) {
        teile << optionName(name);
    }
    QString s = teile.join(QStringLiteral(", "));
    if (!option.valueName().isEmpty()) {
        s += QStringLiteral(" <%1>").arg(option.valueName());
    }
    return s;
}

// The words of sText in lines of at most iBreite characters; a longer word stands alone.
QStringList umbrechen(const QString& sText, int iBreite) {
    QStringList zeilen;
    QString zeile;
    for (const QString& wort : sText.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (!zeile.isEmpty() && zeile.size() + 1 + wort.size() > iBreite) {
            zeilen << zeile;
            zeile.clear();
        }
        zeile += (zeile.isEmpty() ? QString() : QStringLiteral(" ")) + wort;
    }
    if (!zeile.isEmpty() || zeilen.isEmpty()) {
        zeilen << zeile;
    }
    return zeilen;
}

}  // namespace

CommandLine::CommandLine(const QString& description, const QList<QCommandLineOption>& options)
    : mHelp({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Zeigt diese Hilfe an.")),
      msBeschreibung(description) {
    mOptions << mHelp << options;
    mParser.addOptions(mOptions);
}

bool CommandLine::parse(const QStringList& arguments) {
    return mParser.parse(arguments);
}

void CommandLine::process(const QCoreApplication& app) {
    const QString sProgramm = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    if (!parse(app.arguments())) {
        QTextStream(stderr) << sProgramm << ": " << errorText() << "\n";
        std::exit(EXIT_FAILURE);
    }
    if (helpAsked()) {
        QTextStream(stdout) << helpText(sProgramm);
        std::exit(EXIT_SUCCESS);
    }
}

QString CommandLine::errorText() const {
    const QStringList unbekannt = mParser.unknownOptionNames();
    if (unbekannt.size() == 1) {
        return QStringLiteral("Unbekannte Option %1.").arg(optionName(unbekannt.first()));
    }
    if (unbekannt.size() > 1) {
        QStringList namen;
        for (const QString& name : unbekannt) {
            namen << optionName(name);
        }
        return QStringLiteral("Unbekannte Optionen %1.").arg(namen.join(QStringLiteral(", ")));
    }
    // The parser names the option of any other error only in its English text.
    const QString sFehler = mParser.errorText();
    if (sFehler.isEmpty()) {
        return {};
    }
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral("'([^']*)'")).match(sFehler);
    const QString sOption = m.hasMatch() ? m.captured(1) : QString();
    if (sFehler.startsWith(QStringLiteral("Missing value"))) {
        return QStringLiteral("Nach %1 fehlt der Wert.").arg(sOption);
    }
    if (sFehler.startsWith(QStringLiteral("Unexpected value"))) {
        return QStringLiteral("Die Option %1 nimmt keinen Wert.").arg(sOption);
    }
    return QStringLiteral("Die Argumente sind nicht zu lesen.");
}

QString CommandLine::helpText(const QString& sProgramm) const {
    QList<QCommandLineOption> sichtbar;
    int iNamen = 0;
    for (const QCommandLineOption& option : mOptions) {
        if (!(option.flags() & QCommandLineOption::HiddenFromHelp)) {
            sichtbar << option;
            iNamen = std::max(iNamen, static_cast<int>(namen(option).size()));
        }
    }
    iNamen = std::min(iNamen, kNamenBreiteMax);
    const int iText = kEinzug + iNamen + 2;

    QString s = QStringLiteral("Aufruf: %1 [Optionen]\n").arg(sProgramm);
    if (!msBeschreibung.isEmpty()) {
        s += umbrechen(msBeschreibung, kBreite).join(QLatin1Char('\n')) + QLatin1Char('\n');
    }
    s += QStringLiteral("\nOptionen:\n");
    for (const QCommandLineOption& option : sichtbar) {
        QString zeile = QString(kEinzug, QLatin1Char(' ')) + namen(option);
        if (zeile.size() + 2 > iText) {
            s += zeile + QLatin1Char('\n');
            zeile.clear();
        }
        for (const QString& teil : umbrechen(option.description(), kBreite - iText)) {
            s += zeile.leftJustified(iText, QLatin1Char(' ')) + teil + QLatin1Char('\n');
            zeile.clear();
        }
    }
    return s;
}
