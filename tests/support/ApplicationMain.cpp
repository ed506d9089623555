// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <QApplication>
#include <QStandardPaths>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Chromium's sandbox is not for the root of a container.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    // The style of the program, whatever the desktop of the developer.
    QApplication::setStyle(QStringLiteral("fusion"));
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
