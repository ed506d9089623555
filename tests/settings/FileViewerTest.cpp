// SPDX-License-Identifier: MIT
#include "settings/FileViewer.h"

#include <gmock/gmock.h>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

/// Programs of the desktop, replaced by scripts that write down how they were called.
class FileViewerTest : public testing::Test {
protected:
    void SetUp() override
    {
        iFormerPath = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(iFolder.path()) + ":" + iFormerPath);
    }
    void TearDown() override { qputenv("PATH", iFormerPath); }

    void install(const QString& program, int exitStatus)
    {
        QFile script(iFolder.filePath(program));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(u"#!/bin/sh\nfor last; do :; done\necho \"$7 $last\" > '%1.part'\n"
                     u"mv '%1.part' '%1'\nexit %2\n"_s.arg(calls(program))
                         .arg(exitStatus)
                         .toUtf8());
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString calls(const QString& program) const { return iFolder.filePath(program + u".called"_s); }

    QByteArray waitForCall(const QString& program) const
    {
        while (!QFile::exists(calls(program)))
            QThread::msleep(5);
        QFile file(calls(program));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().trimmed();
    }

    QTemporaryDir iFolder;
    QByteArray iFormerPath;
};

} // namespace

TEST_F(FileViewerTest, AsksTheFileManagerToSelectTheItem)
{
    install(u"dbus-send"_s, 0);
    install(u"xdg-open"_s, 0);
    leafcast::FileViewer::select(u"/books/My Book, 2nd"_s);
    EXPECT_EQ(waitForCall(u"dbus-send"_s), "array:string:file:///books/My%20Book%2C%202nd string:");
    EXPECT_FALSE(QFile::exists(calls(u"xdg-open"_s)));
}

TEST_F(FileViewerTest, OpensTheParentWhenNoFileManagerAnswers)
{
    install(u"dbus-send"_s, 1);
    install(u"xdg-open"_s, 0);
    leafcast::FileViewer::select(u"/books/My Book"_s);
    EXPECT_EQ(waitForCall(u"xdg-open"_s), "/books");
}
