// SPDX-License-Identifier: MIT
// Plays the scenes of the application and photographs them; see take, which starts it.
#include "Scenes.h"

#include <QApplication>
#include <QCommandLineParser>

using namespace Qt::StringLiterals;
using namespace leafcast;

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(u"leafcast-desktop"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LEAFCAST_VERSION));
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/icons/leafcast.svg"_s));
    // A size that desktops choose; see fonts.conf.
    QApplication::setFont(QFont(u"sans-serif"_s, 10));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        Stage::fail(u"usage: leafcast-screenshots PICTURES light|dark MATERIAL"_s);
    const QDir material(arguments[3]);
    const Material files{ .magazine = material.filePath(u"hornbeam.pdf"_s),
        .locked = material.filePath(u"locked.pdf"_s),
        .damaged = material.filePath(u"damaged.pdf"_s),
        .books = material.filePath(u"Books"_s),
        .photos = material.filePath(u"Photos"_s) };
    Stage stage(QDir(arguments[1]), arguments[2] == u"dark" ? Appearance::Dark : Appearance::Light);
    playStart(stage);
    playImport(stage, files);
    playPublish(stage, files);
    playOthers(stage);
}
