#include <gtest/gtest.h>

#include "common/CommandLine.h"

namespace {

const QStringList kEnglisch = {QStringLiteral("Usage"),     QStringLiteral("Options:"),
                               QStringLiteral("Arguments"), QStringLiteral("Displays"),
                               QStringLiteral("Unknown"),   QStringLiteral("Missing"),
                               QStringLiteral("Unexpected")};

void expectGerman(const QString& text) {
    for (const QString& wort : kEnglisch) {
        EXPECT_FALSE(text.contains(wort)) << wort.toStdString() << " in " << text.toStdString();
    }
}

struct Aufruf {
    QCommandLineOption db{QStringLiteral("db"), QStringLiteral("Die Datenbank."),
                          QStringLiteral("PFAD")};
    QCommandLineOption summary{QStringLiteral("summary"), QStringLiteral("Nur zählen.")};
    QCommandLineOption geheim{QStringLiteral("geheim"), QStringLiteral("Nicht zu sehen.")};
    CommandLine commandLine;

    explicit Aufruf(const QString& beschreibung = QStringLiteral("Ein Programm."))
        : commandLine(beschreibung, {db, summary, verborgen(geheim)}) {}

    static QCommandLineOption verborgen(QCommandLineOption option) {
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        return option;
    }
};

}  // namespace

TEST(CommandLineTest, HelpIsGermanAndListsTheVisibleOptionsInTheirOrderWithTheirValues) {
    Aufruf a;
    const QString text = a.commandLine.helpText(QStringLiteral("prog"));
    EXPECT_EQ(text, QStringLiteral("Aufruf: prog [Optionen]\n"
                                   "Ein Programm.\n"
                                   "\n"
                                   "Optionen:\n"
                                   "  -h, --help   Zeigt diese Hilfe an.\n"
                                   "  --db <PFAD>  Die Datenbank.\n"
                                   "  --summary    Nur zählen.\n"));
    expectGerman(text);
}

TEST(CommandLineTest, LongDescriptionsWrapUnderTheirColumnAndLongNamesStandAlone) {
    const QString lang = QStringLiteral("Wort ").repeated(40).trimmed();
    CommandLine commandLine(
        lang, {QCommandLineOption(QStringLiteral("a"), lang),
               QCommandLineOption(QStringLiteral("x").repeated(40), QStringLiteral("Kurz."))});
    const QStringList zeilen =
        commandLine.helpText(QStringLiteral("prog")).split(QLatin1Char('\n'));
    for (const QString& zeile : zeilen) {
        EXPECT_LE(zeile.size(), 79) << zeile.toStdString();
    }
    // The names column fits the longest names but at most 36 characters.
    const int spalte = 2 + 36 + 2;
    const int a = zeilen.indexOf(QStringLiteral("  -a").leftJustified(spalte) +
                                 "Wort Wort Wort "
                                 "Wort Wort Wort "
                                 "Wort Wort");
    ASSERT_GE(a, 0) << zeilen.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(zeilen[a + 1].startsWith(QString(spalte, QLatin1Char(' ')) + "Wort"));
    const int x = zeilen.indexOf(QStringLiteral("  --") + QStringLiteral("x").repeated(40));
    ASSERT_GE(x, 0);
    EXPECT_EQ(zeilen[x + 1], QString(spalte, QLatin1Char(' ')) + "Kurz.");
}

TEST(CommandLineTest, WrongArgumentsAreNamedInGerman) {
    const struct {
        QStringList argumente;
        QString fehler;
    } faelle[] = {
        {{QStringLiteral("--dbx")}, QStringLiteral("Unbekannte Option --dbx.")},
        {{QStringLiteral("-q"), QStringLiteral("--dbx")},
         QStringLiteral("Unbekannte Optionen -q, --dbx.")},
        {{QStringLiteral("--db")}, QStringLiteral("Nach --db fehlt der Wert.")},
        {{QStringLiteral("--summary=1")},
         QStringLiteral("Die Option --summary nimmt keinen Wert.")},
    };
    for (const auto& fall : faelle) {
        Aufruf a;
        EXPECT_FALSE(a.commandLine.parse(QStringList{QStringLiteral("prog")} + fall.argumente));
        EXPECT_EQ(a.commandLine.errorText(), fall.fehler);
        expectGerman(a.commandLine.errorText());
    }
}

TEST(CommandLineTest, OptionsKeepTheirValuesAndHelpIsAskedByEitherName) {
    Aufruf a;
    ASSERT_TRUE(a.commandLine.parse({QStringLiteral("prog"), QStringLiteral("--db"),
                                     QStringLiteral("x.sqlite"), QStringLiteral("--geheim")}));
    EXPECT_EQ(a.commandLine.errorText(), QString());
    EXPECT_EQ(a.commandLine.parser().value(a.db), QStringLiteral("x.sqlite"));
    EXPECT_TRUE(a.commandLine.parser().isSet(a.geheim));
    EXPECT_FALSE(a.commandLine.parser().isSet(a.summary));
    EXPECT_FALSE(a.commandLine.helpAsked());
    for (const QString& hilfe : {QStringLiteral("-h"), QStringLiteral("--help")}) {
        Aufruf b;
        ASSERT_TRUE(b.commandLine.parse({QStringLiteral("prog"), hilfe}));
        EXPECT_TRUE(b.commandLine.helpAsked());
    }
}
