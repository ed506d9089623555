// SPDX-License-Identifier: MIT
#include "settings/FileViewer.h"

#include "base/Log.h"

#include <QFileInfo>
#include <QProcess>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace leafcast::FileViewer {

namespace {

    constexpr int answerMilliseconds = 3000;

    QString fileAddress(const QString& path)
    {
        const QString address
            = QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded));
        // A comma would end this element of the message's list.
        return QString(address).replace(u","_s, u"%2C"_s);
    }

    bool askFileManager(const QString& path)
    {
        QProcess messenger;
        messenger.setStandardOutputFile(QProcess::nullDevice());
        messenger.setStandardErrorFile(QProcess::nullDevice());
        messenger.start(u"dbus-send"_s,
            { u"--session"_s, u"--print-reply"_s, u"--reply-timeout=%1"_s.arg(answerMilliseconds),
                u"--dest=org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                u"org.freedesktop.FileManager1.ShowItems"_s, u"array:string:"_s + fileAddress(path),
                u"string:"_s });
        return messenger.waitForFinished(2 * answerMilliseconds)
            && messenger.exitStatus() == QProcess::NormalExit && messenger.exitCode() == 0;
    }

} // namespace

void select(const QString& path)
{
    const QFileInfo item(path);
    if (askFileManager(item.absoluteFilePath()))
        return;
    if (!QProcess::startDetached(u"xdg-open"_s, { item.absolutePath() }))
        LOG_WARN("FileViewer", u"can't show %1: no file manager answers"_s.arg(path));
}

} // namespace leafcast::FileViewer
