// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <QApplication>
#include <QStandardPaths>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    // The style of the program, whatever the desktop of the developer.
    QApplication::setStyle(QStringLiteral("fusion"));
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
