// The trace file cannot take the line (a full disk): the user is told once, the program goes
// on, and the file holds no half line.
#include <gtest/gtest.h>

#include <QFile>

#include "suite/TraceLog.h"
#include "tests/app/AppTestWorld.h"

namespace {

TEST(TraceLogFull, AFullDiskIsToldOnceAndTheTracedProgramGoesOn) {
    app_test::World world;
    auto config = std::make_shared<SuiteConfig>();
    config->traceOn = true;
    config->traceFilePath = QStringLiteral("/dev/full");
    if (!QFile::exists(config->traceFilePath)) {
        GTEST_SKIP() << "no /dev/full here";
    }
    SuiteTraceLog log(config);

    log.Write(1, QStringLiteral("ZPKyAutoJobVerw.cAdminJob.Class_Initialize"));
    log.Write(1, QStringLiteral("ZPKyAutoJobVerw.cAdminJob.Class_Terminate"));

    ASSERT_EQ(world.boxTexts().size(), 1);
    EXPECT_TRUE(world.boxTexts().at(0).startsWith(
        QStringLiteral("Die Ablaufverfolgung kann nicht in die Datei /dev/full geschrieben "
                       "werden (")))
        << world.boxTexts().at(0).toStdString();
    EXPECT_TRUE(world.boxTexts().at(0).endsWith(
        QStringLiteral("). Das Programm arbeitet ohne sie weiter.")));
    EXPECT_EQ(world.ui->boxes.at(0).flags, 48);
    EXPECT_TRUE(world.ui->reports.empty());
}

}  // namespace
