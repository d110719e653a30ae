#include <gtest/gtest.h>

#include "scenario/ScenarioError.h"
#include "scenario/ScenarioEvents.h"
#include "scenario/ScenarioSyntax.h"
#include "scenario/ScenarioValue.h"

namespace {

QString failureOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const ScenarioError& e) {
        return e.reason;
    }
    return QStringLiteral("<no failure>");
}

TEST(ScenarioSyntax, WordsSplitAtBlanksAndQuotedTextsKeepBlanksAndEscapes) {
    const auto t = tokenizeLine(
        QStringLiteral("  msgbox \"Soll der \\\"Auftrag\\\" weg?\\r\\nJa\\\\Nein\\t.\"  answer 6"));
    ASSERT_EQ(t.size(), 4);
    EXPECT_EQ(t[0].raw, "msgbox");
    EXPECT_FALSE(t[0].quoted);
    EXPECT_EQ(t[1].text, "Soll der \"Auftrag\" weg?\r\nJa\\Nein\t.");
    EXPECT_TRUE(t[1].quoted);
    EXPECT_EQ(t[2].raw, "answer");
    EXPECT_EQ(t[3].raw, "6");
}

TEST(ScenarioSyntax, AWordMixingQuotedAndPlainPiecesIsNotAQuotedText) {
    const auto t = tokenizeLine(QStringLiteral("context DocName=\"Meine Aufträge\" ManNr=3 \"\""));
    ASSERT_EQ(t.size(), 4);
    EXPECT_EQ(t[1].text, "DocName=Meine Aufträge");
    EXPECT_FALSE(t[1].quoted);
    EXPECT_EQ(t[1].raw, "DocName=\"Meine Aufträge\"");
    EXPECT_TRUE(t[3].quoted);
    EXPECT_EQ(t[3].text, "");
}

TEST(ScenarioSyntax, OpenTextsAndUnknownEscapesFailTheLine) {
    EXPECT_EQ(failureOf([] { tokenizeLine(QStringLiteral("type x \"abc")); }),
              "a text in double quotes is not closed");
    EXPECT_EQ(failureOf([] { tokenizeLine(QStringLiteral("type x \"a\\qb\"")); }),
              "unknown escape \\q in a text");
}

TEST(ScenarioSyntax, PathsSplitIntoWindowControlIndexAndProperty) {
    const auto p = parsePath(QStringLiteral("frmEigenschaften.txtTextBox(2).Text"));
    ASSERT_EQ(p.size(), 3);
    EXPECT_EQ(p[0].name, "frmEigenschaften");
    EXPECT_FALSE(p[0].args.has_value());
    EXPECT_EQ(p[1].name, "txtTextBox");
    ASSERT_TRUE(p[1].args.has_value());
    EXPECT_EQ(p[1].args->at(0).number(), 2);
    EXPECT_EQ(p[2].name, "Text");
}

TEST(ScenarioSyntax, QuotedPathPartsMayHoldBlanksAndDots) {
    const auto p =
        parsePath(QStringLiteral("frmPakete.barMenu.Bearbeiten.\"Auftrag aus.führen\".Enabled"));
    ASSERT_EQ(p.size(), 5);
    EXPECT_EQ(p[3].name, "Auftrag aus.führen");
    EXPECT_TRUE(p[3].quoted);
    EXPECT_EQ(p[3].display(), "\"Auftrag aus.führen\"");
    EXPECT_EQ(p[4].name, "Enabled");
}

TEST(ScenarioSyntax, PropertyArgumentsAreNumbersOrQuotedNames) {
    const auto grid = parsePath(QStringLiteral("frmX.grdData.TextMatrix( 1 , 2 )"));
    ASSERT_EQ(grid[2].args->size(), 2);
    EXPECT_EQ(grid[2].args->at(0).number(), 1);
    EXPECT_EQ(grid[2].args->at(1).number(), 2);

    const auto cell =
        parsePath(QStringLiteral("frmPakete.ctlPakete.Cell(1,\"Mandant/Kanzlei, x\")"));
    ASSERT_EQ(cell[2].args->size(), 2);
    EXPECT_EQ(cell[2].args->at(1).text, "Mandant/Kanzlei, x");
    EXPECT_TRUE(cell[2].args->at(1).quoted);
    EXPECT_EQ(cell[2].display(), "Cell(1,\"Mandant/Kanzlei, x\")");

    EXPECT_EQ(failureOf([&] { cell[2].args->at(1).number(); }),
              "\"Mandant/Kanzlei, x\" is no whole number");
}

TEST(ScenarioSyntax, MalformedPathsFail) {
    EXPECT_EQ(failureOf([] { parsePath(QStringLiteral("frmX..Text")); }),
              "the path frmX..Text has an empty part");
    EXPECT_EQ(failureOf([] { parsePath(QStringLiteral("frmX.grd.TextMatrix(1,2")); }),
              "parentheses are not closed");
    EXPECT_EQ(failureOf([] { parsePath(QStringLiteral("frmX.grd.TextMatrix(1,)")); }),
              "an empty argument in parentheses");
    EXPECT_EQ(failureOf([] { parsePath(QStringLiteral("frmX.\"a\"b")); }),
              "the path frmX.\"a\"b is not of the form window.control");
}

TEST(ScenarioSyntax, QuotingATextEscapesWhatTheParserUnescapes) {
    const QString text = QStringLiteral("a \"b\" \\ c\r\n\td");
    const auto t = tokenizeLine(quoteText(text));
    ASSERT_EQ(t.size(), 1);
    EXPECT_EQ(t[0].text, text);
}

Token word(const QString& written) {
    return tokenizeLine(written).first();
}

TEST(ScenarioValues, WrittenValuesHaveTheirKinds) {
    EXPECT_EQ(ScenarioValue::parse(word("\"5\"")), ScenarioValue::text("5"));
    EXPECT_EQ(ScenarioValue::parse(word("-1000")), ScenarioValue::number(-1000));
    EXPECT_EQ(ScenarioValue::parse(word("1.5")), ScenarioValue::number(1.5));
    EXPECT_EQ(ScenarioValue::parse(word("true")), ScenarioValue::boolean(true));
    EXPECT_EQ(ScenarioValue::parse(word("2026-12-01")), ScenarioValue::date(QDate(2026, 12, 1)));
    EXPECT_EQ(ScenarioValue::parse(word("none")), ScenarioValue::date(std::nullopt));
    EXPECT_EQ(failureOf([] { ScenarioValue::parse(word("Erster")); }).left(18),
              "Erster is no value");
    EXPECT_EQ(failureOf([] { ScenarioValue::parse(word("2026-02-30")); }).left(22),
              "2026-02-30 is no value");
}

TEST(ScenarioValues, ATextNeverEqualsANumberOrAFlag) {
    EXPECT_FALSE(ScenarioValue::text("5") == ScenarioValue::number(5));
    EXPECT_FALSE(ScenarioValue::text("true") == ScenarioValue::boolean(true));
    EXPECT_FALSE(ScenarioValue::number(0) == ScenarioValue::boolean(false));
    EXPECT_FALSE(ScenarioValue::date(std::nullopt) == ScenarioValue::text(""));
}

TEST(ScenarioValues, ValuesAreShownAsTheyAreWritten) {
    EXPECT_EQ(ScenarioValue::text("a \"b\"\r\n").display(), "\"a \\\"b\\\"\\r\\n\"");
    EXPECT_EQ(ScenarioValue::number(-1000).display(), "-1000");
    EXPECT_EQ(ScenarioValue::number(1.25).display(), "1.25");
    EXPECT_EQ(ScenarioValue::number(13158600).display(), "13158600");
    EXPECT_EQ(ScenarioValue::boolean(false).display(), "false");
    EXPECT_EQ(ScenarioValue::date(QDate(2026, 1, 2)).display(), "2026-01-02");
    EXPECT_EQ(ScenarioValue::date(std::nullopt).display(), "none");
}

TEST(ScenarioValues, RawCellValuesKeepNumbersAndShowDatesAsIsoText) {
    EXPECT_EQ(ScenarioValue::fromVariant(QVariant(qlonglong(7))), ScenarioValue::number(7));
    EXPECT_EQ(ScenarioValue::fromVariant(QVariant(QStringLiteral("7"))), ScenarioValue::text("7"));
    EXPECT_EQ(ScenarioValue::fromVariant(QVariant()), ScenarioValue::text(""));
    EXPECT_EQ(ScenarioValue::fromVariant(QVariant(QDateTime(QDate(2026, 11, 22), QTime(9, 5)))),
              ScenarioValue::text("2026-11-22 09:05:00"));
    EXPECT_EQ(ScenarioValue::fromVariant(QVariant(true)), ScenarioValue::boolean(true));
}

TEST(ScenarioValues, AnErrorReportsProcedureIsTheLastPathLinesLastName) {
    EXPECT_EQ(errorProcedure(QStringLiteral("000100000000|ZPKyAutoJobVerw|hdata\r\n"
                                            "ZPKyAutoJobVerw.cAdminJob.mLoescheJob (Zeile 12)")),
              "mLoescheJob");
    EXPECT_EQ(errorProcedure(QStringLiteral("x\r\nZPKyAutoJobVerw.cAdminJob.mA\r\n"
                                            "ZPKyAutoJobVerw.cUIAutoJobVerw.fbNotify")),
              "fbNotify");
    EXPECT_EQ(errorProcedure(QStringLiteral("mStart")), "mStart");
}

}  // namespace
