// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "app/Language.h"
#include "app/Leafcast_for_iPad_MacAppDelegate.h"
#include "app/MainWindow.h"
#include "app/SingleInstance.h"

#include <QApplication>
#include <QLocale>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

void comeToTheFront(MainWindow& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

int main(int argc, char** argv)
{
    CommandLine commandLine;
    if (const auto status = commandLine.answerWithoutWindows(argc, argv))
        return *status;
    QCoreApplication::setApplicationName(u"leafcast-desktop"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LEAFCAST_VERSION));
    QGuiApplication::setDesktopFileName(u"leafcast-desktop"_s);
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/icons/leafcast.svg"_s));
    speakFirstOf(QLocale::system().uiLanguages());
    if (const auto status = commandLine.parse(argc, argv))
        return *status;
    const QStringList files = commandLine.files();

    SingleInstance instance(u"leafcast-desktop-%1"_s.arg(getuid()));
    if (!instance.claim(files))
        return 0;

    Leafcast_for_iPad_MacAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QObject::connect(
        &instance, &SingleInstance::startedAgain, &delegate, [&delegate](const QStringList& later) {
            comeToTheFront(*delegate.window());
            if (!later.isEmpty())
                delegate.importFiles(later);
        });
    if (!files.isEmpty())
        delegate.importFiles(files);
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}
