#include <gtest/gtest.h>
#include <QApplication>

#include "gui/QtGerman.h"

// The kit's tests run on real widgets, without a screen unless one is asked for.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    useGermanEverywhere();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
