// The programs' --help and wrong arguments, run as users run them: German throughout, Qt's own
// texts included, and every option listed.
#include <gtest/gtest.h>

#include "tests/host/ProgramRun.h"

namespace {

using Ergebnis = ProgramRun;

Ergebnis run(const QString& program, const QStringList& arguments) {
    return runProgram(program, arguments);
}

// What QCommandLineParser writes of its own.
const QStringList kQtTexte = {QStringLiteral("Usage:"),       QStringLiteral("Options:"),
                              QStringLiteral("Arguments:"),   QStringLiteral("Displays"),
                              QStringLiteral("--help-all"),   QStringLiteral("Unknown option"),
                              QStringLiteral("Missing value")};

void expectHelp(const QString& program, const QString& name, const QStringList& options) {
    for (const QString& hilfe : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const Ergebnis r = run(program, {hilfe});
        ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
        EXPECT_TRUE(r.out.startsWith(QStringLiteral("Aufruf: %1 [Optionen]\n").arg(name)))
            << r.out.toStdString();
        EXPECT_TRUE(r.out.contains(QStringLiteral("\nOptionen:\n  -h, --help ")));
        EXPECT_TRUE(r.out.contains(QStringLiteral("Zeigt diese Hilfe an.")));
        for (const QString& text : kQtTexte) {
            EXPECT_FALSE(r.out.contains(text)) << text.toStdString();
        }
        for (const QString& option : options) {
            EXPECT_TRUE(r.out.contains(QStringLiteral("\n  ") + option))
                << option.toStdString() << " missing in\n"
                << r.out.toStdString();
        }
    }
    const Ergebnis r = run(program, {QStringLiteral("--gibtsnicht")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("%1: Unbekannte Option --gibtsnicht.\n").arg(name)))
        << r.err.toStdString();
    EXPECT_EQ(r.out, QString());
}

}  // namespace

TEST(CommandLineHelpTest, TheProgramsHelpIsGermanAndListsEveryOption) {
    expectHelp(QStringLiteral(AJV_PROGRAM), QStringLiteral("autojobverw"),
               {QStringLiteral("--db <PFAD|ADRESSE>"), QStringLiteral("--config <DATEI>"),
                QStringLiteral("--mandant <ID>"), QStringLiteral("--mitarbeiter <ID>"),
                QStringLiteral("--aktentyp <N>"), QStringLiteral("--installationsart <N>"),
                QStringLiteral("--summary "), QStringLiteral("--shot <DATEI>"),
                QStringLiteral("--export <DATEI>"), QStringLiteral("--import <DATEI>"),
                QStringLiteral("--vorschau "), QStringLiteral("--von <yyyy-MM-dd HH:mm:ss>"),
                QStringLiteral("--bis <yyyy-MM-dd HH:mm:ss>"), QStringLiteral("--auftrag <ID>"),
                QStringLiteral("--journal ")});
}

TEST(CommandLineHelpTest, TheAgentsHelpIsGermanAndListsEveryOption) {
    expectHelp(QStringLiteral(AJV_AGENT), QStringLiteral("autojobverw-agent"),
               {QStringLiteral("--db <PFAD|ADRESSE>"), QStringLiteral("--years <N>"),
                QStringLiteral("--live "), QStringLiteral("--interval-ms <MS>"),
                QStringLiteral("--count <N>"), QStringLiteral("--runs-per-job <N>"),
                QStringLiteral("--log-entries <N>"), QStringLiteral("--job <ID>"),
                QStringLiteral("--seed <N>")});
}
