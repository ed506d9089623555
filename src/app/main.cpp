// SPDX-License-Identifier: MIT
#include "app/Language.h"
#include "app/Leafcast_for_iPad_MacAppDelegate.h"
#include "app/MainWindow.h"
#include "app/SingleInstance.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

QStringList filesOf(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Turns a PDF into a page-turning digital book."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"files"_s,
        QCoreApplication::translate("main", "A PDF, or pictures, to make a book of"), u"[FILE…]"_s);
    parser.process(application);
    QStringList files;
    for (const QString& argument : parser.positionalArguments())
        files.append(QFileInfo(argument).absoluteFilePath());
    return files;
}

void comeToTheFront(MainWindow& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(u"leafcast-desktop"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LEAFCAST_VERSION));
    QGuiApplication::setDesktopFileName(u"leafcast-desktop"_s);
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/icons/leafcast.svg"_s));
    speakFirstOf(QLocale::system().uiLanguages());
    const QStringList files = filesOf(application);

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
