// SPDX-License-Identifier: MIT
#include "base/FileSteps.h"

#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <fcntl.h>
#include <QDateTime>
#include <QTemporaryDir>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

class FileStepsTest : public testing::Test {
protected:
    QString at(const QString& name) const { return iFolder.filePath(name); }

    static ino_t inodeOf(const QString& path)
    {
        struct stat status { };
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        return status.st_ino;
    }

    QStringList names(const QString& folder) const
    {
        return QDir(at(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir iFolder;
    LogCapture iLog;
};

TEST_F(FileStepsTest, ACopyKeepsBytesTimeAndPermissionsAndNeverOverwrites)
{
    const QString source = writeTestFile(at(u"a"_s), "page");
    const timespec times[2] = { { 1000000, 0 }, { 1234567, 890000000 } };
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times, 0), 0);
    ASSERT_TRUE(QFile::setPermissions(source, QFile::ReadOwner | QFile::ExeOwner));

    ASSERT_TRUE(FileSteps::copyFile(source, at(u"b"_s)));

    EXPECT_EQ(readTestFile(at(u"b"_s)), "page");
    EXPECT_EQ(QFileInfo(at(u"b"_s)).lastModified(), QFileInfo(source).lastModified());
    EXPECT_TRUE(QFileInfo(at(u"b"_s)).isExecutable());

    EXPECT_FALSE(FileSteps::copyFile(writeTestFile(at(u"c"_s), "new"), at(u"b"_s)));
    EXPECT_EQ(readTestFile(at(u"b"_s)), "page");
    EXPECT_EQ(names(u"."_s), QStringList({ u"a"_s, u"b"_s, u"c"_s }));
    EXPECT_EQ(iLog.lines().filter(at(u"b"_s)).size(), 1);
}

TEST_F(FileStepsTest, ReplacingSwapsAllButAnEqualFileAndLeavesNothingOfTheOldWithoutASource)
{
    writeTestFile(at(u"a"_s), "page");
    writeTestFile(at(u"folder/inside"_s), "x");
    writeTestFile(at(u"old"_s), "old");
    QFile::link(writeTestFile(at(u"elsewhere"_s), "kept"), at(u"link"_s));
    for (const QString& name : { u"old"_s, u"folder"_s, u"link"_s }) {
        EXPECT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(name)));
        EXPECT_EQ(readTestFile(at(name)), "page");
    }
    EXPECT_EQ(readTestFile(at(u"elsewhere"_s)), "kept");
    const ino_t before = inodeOf(at(u"old"_s));
    EXPECT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"old"_s)));
    EXPECT_EQ(inodeOf(at(u"old"_s)), before);
    EXPECT_FALSE(FileSteps::replaceFile(at(u"missing"_s), at(u"old"_s)));
    EXPECT_FALSE(FileSteps::exists(at(u"old"_s)));
    EXPECT_EQ(iLog.lines().size(), 1);
}

TEST_F(FileStepsTest, AFolderCopyHoldsFilesAndFoldersButNoLinksNorItself)
{
    writeTestFile(at(u"a/.hidden/deep"_s), "1");
    QFile::link(writeTestFile(at(u"target"_s), "2"), at(u"a/link"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"a/pipe"_s)).constData(), 0600), 0);
    FileSteps::copyFolder(at(u"a"_s), at(u"ab"_s));
    EXPECT_EQ(readTestFile(at(u"ab/.hidden/deep"_s)), "1");
    EXPECT_EQ(readTestFile(at(u"ab/link"_s)), "2");
    EXPECT_FALSE(QFileInfo(at(u"ab/link"_s)).isSymLink());
    EXPECT_FALSE(FileSteps::exists(at(u"ab/pipe"_s)));

    QString reason;
    EXPECT_FALSE(FileSteps::copyFolder(at(u"a"_s), at(u"a/.hidden/copy"_s), &reason));
    EXPECT_TRUE(reason.endsWith(u"that is inside it"_s)) << reason.toStdString();
}

TEST_F(FileStepsTest, AFolderCopyLeavesOutLinksThatLeadBack)
{
    writeTestFile(at(u"a/file"_s), "1");
    QDir().mkpath(at(u"a/c"_s));
    QFile::link(u"."_s, at(u"a/here"_s));
    QFile::link(u".."_s, at(u"a/c/up"_s));
    QFile::link(at(u"b/c"_s), at(u"a/c/copy"_s));
    QFile::link(u"c"_s, at(u"a/twice"_s));

    EXPECT_TRUE(FileSteps::copyFolder(at(u"a"_s), at(u"b"_s)));

    EXPECT_EQ(names(u"b"_s), QStringList({ u"c"_s, u"file"_s, u"twice"_s }));
    EXPECT_TRUE(names(u"b/c"_s).isEmpty());
    EXPECT_EQ(iLog.lines().filter(u"leads back"_s).size(), 5);
}

TEST_F(FileStepsTest, AFolderCopyGoesOnAfterAFileThatFailsAndTellsOfIt)
{
    writeTestFile(at(u"a/1"_s), QByteArray(5000, 'x'));
    writeTestFile(at(u"a/2"_s), "small");
    QString reason;
    const FileSizeLimit limit(1000);
    EXPECT_FALSE(FileSteps::copyFolder(at(u"a"_s), at(u"b"_s), &reason));
    EXPECT_TRUE(reason.contains(at(u"a/1"_s))) << reason.toStdString();
    EXPECT_EQ(readTestFile(at(u"b/2"_s)), "small");
    EXPECT_FALSE(FileSteps::exists(at(u"b/1"_s)));
    EXPECT_EQ(iLog.lines().size(), 1);
}

TEST_F(FileStepsTest, AWriteThatTheDiskHasNoRoomForLeavesTheOlderFile)
{
    const QString path = writeTestFile(at(u"book"_s), "older");
    const FileSizeLimit limit(1000);
    for (const qsizetype size : { 5'000, 50'000 })
        EXPECT_FALSE(FileSteps::writeAtomically(path, QByteArray(size, 'x'))) << size;
    EXPECT_EQ(readTestFile(path), "older");
    EXPECT_EQ(names(u"."_s), QStringList{ u"book"_s });
    EXPECT_EQ(iLog.lines().filter(u"File too large"_s).size(), 2);
}

TEST_F(FileStepsTest, RemovingTakesALinkButNotItsTarget)
{
    writeTestFile(at(u"kept/file"_s), "x");
    QFile::link(at(u"kept"_s), at(u"link"_s));
    EXPECT_TRUE(FileSteps::remove(at(u"link"_s)));
    EXPECT_EQ(names(u"."_s), QStringList{ u"kept"_s });
    EXPECT_TRUE(FileSteps::exists(at(u"kept/file"_s)));
}
