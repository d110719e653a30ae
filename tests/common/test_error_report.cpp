#include <gtest/gtest.h>

#include "common/ErrorExit.h"
#include "tests/common/CommonFakes.h"

namespace {

const QString kHead = QStringLiteral("000100000000|ZPKyAutoJobVerw|");

class ErrorReportTest : public ::testing::Test {
  protected:
    std::shared_ptr<RecordingUi> ui = std::make_shared<RecordingUi>();
    ScopedServices scope{recordingServices(ui)};
};

void innermost(long erl) {
    ErrorExit ex(QStringLiteral("mInnen"), QStringLiteral("cAdminJob"));
    try {
        throw RaisedError(5, QStringLiteral("Ungültiger Prozeduraufruf"), QStringLiteral("hdata"),
                          erl);
    } catch (...) {
        ex.fail(true);
    }
}

void middle(long erl) {
    ErrorExit ex(QStringLiteral("mMitte"), QStringLiteral("cAdminJob"));
    try {
        innermost(erl);
    } catch (...) {
        ex.fail(true);
    }
}

bool outer(long erl) {
    ErrorExit ex(QStringLiteral("mbAussen"), QStringLiteral("cAdminJob"));
    try {
        middle(erl);
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}

TEST_F(ErrorReportTest, ErrorPassingThreeLevelsHasOneHeadAndThreePathLines) {
    EXPECT_FALSE(outer(0));
    ASSERT_EQ(ui->reports.size(), 1u);
    const auto& r = ui->reports.front();
    EXPECT_EQ(r.number, 5);
    EXPECT_EQ(r.description, QStringLiteral("Ungültiger Prozeduraufruf"));
    EXPECT_EQ(r.source, kHead + QStringLiteral("hdata\r\nZPKyAutoJobVerw.cAdminJob.mInnen"
                                               "\r\nZPKyAutoJobVerw.cAdminJob.mMitte"
                                               "\r\nZPKyAutoJobVerw.cAdminJob.mbAussen"));
    EXPECT_EQ(r.source.count(QStringLiteral("|ZPKyAutoJobVerw|")), 1);
    // The report leaves nothing behind for the next error.
    EXPECT_EQ(Err().Number, 0);
    EXPECT_EQ(savedError().number, 0);
    EXPECT_EQ(ui->pointer, 0);
}

TEST_F(ErrorReportTest, LineNumberMarksTheFailingLevel) {
    outer(120);
    ASSERT_EQ(ui->reports.size(), 1u);
    // The line belongs to the statement that failed; the levels above raise anew.
    EXPECT_TRUE(ui->reports.front().source.endsWith(
        QStringLiteral("cAdminJob.mInnen (Zeile 120)\r\nZPKyAutoJobVerw.cAdminJob.mMitte"
                       "\r\nZPKyAutoJobVerw.cAdminJob.mbAussen")))
        << ui->reports.front().source.toStdString();
}

TEST_F(ErrorReportTest, WithoutLineNumbersNoZeile) {
    outer(0);
    EXPECT_FALSE(ui->reports.front().source.contains(QStringLiteral(" (Zeile ")));
}

TEST_F(ErrorReportTest, VersionHeadOnlyWhenBarIsNotAtPositionThirteen) {
    Err() = ErrObject{1, {}, QStringLiteral("000100000000|X|quelle"), 0};
    Core_gQuelleSetzen();
    EXPECT_EQ(Err().Source, QStringLiteral("000100000000|X|quelle"));

    Err() = ErrObject{1, {}, QStringLiteral("00010000000|X|quelle"), 0};
    Core_gQuelleSetzen();
    EXPECT_EQ(Err().Source, kHead + QStringLiteral("00010000000|X|quelle"));

    Err() = ErrObject{1, {}, QString(), 0};
    Core_gQuelleSetzen();
    EXPECT_EQ(Err().Source, kHead);
    Err().Clear();
}

TEST_F(ErrorReportTest, VersionIsFourDigitsEach) {
    services().program.major = 1;
    services().program.minor = 2;
    services().program.revision = 3;
    Err() = ErrObject{1, {}, QStringLiteral("s"), 0};
    Core_gQuelleSetzen();
    EXPECT_EQ(Err().Source, QStringLiteral("000100020003|ZPKyAutoJobVerw|s"));
    Err().Clear();
}

TEST_F(ErrorReportTest, SavedErrorSurvivesCleanUpAndComesBack) {
    Err() = ErrObject{91, QStringLiteral("erster"), QStringLiteral("q1"), 0};
    Core_gFehlerMerken(QStringLiteral("info"));
    EXPECT_EQ(Err().Number, 0);
    // A second error while cleaning up does not overwrite the saved one.
    Err() = ErrObject{3, QStringLiteral("zweiter"), QStringLiteral("q2"), 0};
    Core_gFehlerMerken(QString());
    Core_gFehlerZurueck();
    EXPECT_EQ(Err().Number, 91);
    EXPECT_EQ(Err().Description, QStringLiteral("erster"));
    EXPECT_EQ(Err().Source, QStringLiteral("q1\r\ninfo"));
    EXPECT_EQ(savedError().number, 0);
    EXPECT_TRUE(savedError().source.isEmpty());
    Err().Clear();
}

TEST_F(ErrorReportTest, FailedCreationNamesTheCommandInSourceAndDescription) {
    const bool ok = withErrorExit<bool>(
        QStringLiteral("mLaden"), QStringLiteral("cAdminJob"), false, [](ErrorExit& ex) {
            ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                      QStringLiteral("Set oTL = New hdata.CRecordset"));
            return true;
        });
    EXPECT_FALSE(ok);
    ASSERT_EQ(ui->reports.size(), 1u);
    const auto& r = ui->reports.front();
    EXPECT_EQ(r.number, 429);
    const QString creation = QStringLiteral("<hdata.dll:Set oTL = New hdata.CRecordset>");
    EXPECT_EQ(r.description,
              QStringLiteral("Objekterstellung durch ActiveX-Komponente nicht möglich\r\n\r\n") +
                  creation);
    EXPECT_EQ(r.source, kHead + QStringLiteral("hdata.dll\r\n") + creation +
                            QStringLiteral("\r\nZPKyAutoJobVerw.cAdminJob.mLaden"));
}

TEST_F(ErrorReportTest, ReportFallsBackToPlainMessageWhenErrorDialogCannotBeCreated) {
    services().newCoreError = nullptr;
    Err() = ErrObject{7, QStringLiteral("Kein Speicher"), QStringLiteral("quelle"), 0};
    Core_gErrorHandling(Err());
    ASSERT_EQ(ui->boxes.size(), 1u);
    EXPECT_EQ(ui->boxes[0].flags, 16);
    EXPECT_EQ(ui->boxes[0].title, QStringLiteral("Fehler beim Zugriff auf eine DLL"));
    EXPECT_EQ(ui->boxes[0].text,
              QStringLiteral("Fehler-Nr: 429\r\nObjekterstellung durch ActiveX-Komponente nicht "
                             "möglich\r\n\r\nFolgender Befehl hat diesen Fehler ausgelöst:\r\n"
                             "\"Set oCoreError = New hcore.CoreErrorClass\"\r\n\r\n"
                             "Fehlerquelle: hcore\r\nCoreErrorHandling.Core_gErrorHandling"));
    EXPECT_TRUE(ui->reports.empty());
    EXPECT_EQ(Err().Number, 0);
}

TEST_F(ErrorReportTest, ForeignExceptionsAreReportedToo) {
    withErrorExit<int>(QStringLiteral("mRechnen"), QStringLiteral("cLogDaten"), 0,
                       [](ErrorExit&) -> int { throw std::runtime_error("kaputt"); });
    ASSERT_EQ(ui->reports.size(), 1u);
    EXPECT_EQ(ui->reports[0].description, QStringLiteral("kaputt"));
    EXPECT_TRUE(
        ui->reports[0].source.endsWith(QStringLiteral("\r\nZPKyAutoJobVerw.cLogDaten.mRechnen")));
}

}  // namespace
