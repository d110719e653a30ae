#include <gtest/gtest.h>

#include <QApplication>

#include "gui/QtGerman.h"

// The program's windows run without a screen unless one is asked for.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    useGermanEverywhere();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
