// Real widgets without a screen.
#include "workbench/Theme.h"

#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    glotta::ApplyTheme(qEnvironmentVariable("GLOTTA_THEME", "Light").toStdString());
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
