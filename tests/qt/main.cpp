// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // File dialogs would keep their state there.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    // A desktop may have them.
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setStyle("windows");
    return RUN_ALL_TESTS();
}
