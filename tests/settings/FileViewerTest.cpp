// SPDX-License-Identifier: MIT
#include "settings/FileViewer.h"

#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace leafcast;

/// The programs of the desktop are replaced by scripts that write down how they were called.
TEST(FileViewer, OpensTheParentWhenNoFileManagerSelectsTheItem)
{
    const QTemporaryDir folder;
    for (const auto& program : { u"dbus-send"_s, u"xdg-open"_s }) {
        const QString path = writeTestFile(folder.filePath(program),
            "#!/bin/sh\nfor last; do :; done\necho \"$7 $last\" >$0.part\n"
            "mv $0.part $0.called\nexit 1\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    }
    const QByteArray formerPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ":" + formerPath);
    FileViewer::select(u"/books/My Book, 2nd"_s);
    while (!QFile::exists(folder.filePath(u"xdg-open.called"_s)))
        QThread::msleep(5);
    qputenv("PATH", formerPath);
    EXPECT_EQ(readTestFile(folder.filePath(u"dbus-send.called"_s)),
        "array:string:file:///books/My%20Book%2C%202nd string:\n");
    EXPECT_EQ(readTestFile(folder.filePath(u"xdg-open.called"_s)), " /books\n");
}
