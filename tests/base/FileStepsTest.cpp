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

    static ino_t inode(const QString& path)
    {
        struct stat status { };
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        return status.st_ino;
    }

    QTemporaryDir iFolder;
    LogCapture iLog;
};

TEST_F(FileStepsTest, ACopyKeepsBytesTimeAndPermissions)
{
    const QString source = writeTestFile(at(u"a"_s), "page");
    const timespec times[2] = { { 1000000, 0 }, { 1234567, 890000000 } };
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times, 0), 0);
    ASSERT_TRUE(QFile::setPermissions(source, QFile::ReadOwner | QFile::ExeOwner));

    ASSERT_TRUE(FileSteps::copyFile(source, at(u"b"_s)));

    EXPECT_EQ(readTestFile(at(u"b"_s)), "page");
    EXPECT_EQ(QFileInfo(at(u"b"_s)).lastModified(), QFileInfo(source).lastModified());
    EXPECT_TRUE(QFileInfo(at(u"b"_s)).isExecutable());
}

TEST_F(FileStepsTest, ACopyOntoSomethingFailsWithOneLogLineAndLeavesIt)
{
    writeTestFile(at(u"a"_s), "new");
    writeTestFile(at(u"b"_s), "old");

    EXPECT_FALSE(FileSteps::copyFile(at(u"a"_s), at(u"b"_s)));

    EXPECT_EQ(readTestFile(at(u"b"_s)), "old");
    ASSERT_EQ(iLog.lines().size(), 1);
    EXPECT_TRUE(iLog.lines().first().contains(at(u"b"_s)));
    EXPECT_EQ(QDir(iFolder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(FileStepsTest, ReplacingLeavesAnUnchangedFileAlone)
{
    writeTestFile(at(u"a"_s), "page");
    ASSERT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"b"_s)));
    const ino_t before = inode(at(u"b"_s));

    ASSERT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"b"_s)));
    EXPECT_EQ(inode(at(u"b"_s)), before);

    writeTestFile(at(u"a"_s), "other");
    ASSERT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"b"_s)));
    EXPECT_EQ(readTestFile(at(u"b"_s)), "other");
}

TEST_F(FileStepsTest, ReplacingFromNothingRemovesTheOldFile)
{
    writeTestFile(at(u"b"_s), "old");
    EXPECT_FALSE(FileSteps::replaceFile(at(u"missing"_s), at(u"b"_s)));
    EXPECT_FALSE(FileSteps::exists(at(u"b"_s)));
    EXPECT_EQ(iLog.lines().size(), 1);
}

TEST_F(FileStepsTest, ReplacingSwapsFoldersAndLinksForTheFile)
{
    writeTestFile(at(u"a"_s), "page");
    writeTestFile(at(u"folder/inside"_s), "x");
    writeTestFile(at(u"elsewhere"_s), "kept");
    QFile::link(at(u"elsewhere"_s), at(u"link"_s));

    EXPECT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"folder"_s)));
    EXPECT_TRUE(FileSteps::replaceFile(at(u"a"_s), at(u"link"_s)));

    EXPECT_EQ(readTestFile(at(u"folder"_s)), "page");
    EXPECT_EQ(readTestFile(at(u"link"_s)), "page");
    EXPECT_EQ(readTestFile(at(u"elsewhere"_s)), "kept");
}

TEST_F(FileStepsTest, AFolderCopyHoldsFilesAndFoldersButNoLinks)
{
    writeTestFile(at(u"a/.hidden/deep"_s), "1");
    writeTestFile(at(u"target"_s), "2");
    QFile::link(at(u"target"_s), at(u"a/link"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"a/pipe"_s)).constData(), 0600), 0);

    FileSteps::copyFolder(at(u"a"_s), at(u"b"_s));

    EXPECT_EQ(readTestFile(at(u"b/.hidden/deep"_s)), "1");
    EXPECT_EQ(readTestFile(at(u"b/link"_s)), "2");
    EXPECT_FALSE(QFileInfo(at(u"b/link"_s)).isSymLink());
    EXPECT_FALSE(FileSteps::exists(at(u"b/pipe"_s)));
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

    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    EXPECT_EQ(QDir(at(u"b"_s)).entryList(all, QDir::Name),
        QStringList({ u"c"_s, u"file"_s, u"twice"_s }));
    EXPECT_TRUE(QDir(at(u"b/c"_s)).isEmpty(all));
    EXPECT_EQ(iLog.lines().filter(u"leads back"_s).size(), 5);
    EXPECT_EQ(iLog.lines().size(), 5);
}

TEST_F(FileStepsTest, AFolderIsNotCopiedIntoItselfAndTheReasonIsHandedOut)
{
    writeTestFile(at(u"a/deep/file"_s), "1");
    QString reason;
    EXPECT_FALSE(FileSteps::copyFolder(at(u"a"_s), at(u"a/deep/copy"_s), &reason));
    EXPECT_TRUE(reason.endsWith(u"that is inside it"_s)) << reason.toStdString();
    EXPECT_FALSE(FileSteps::exists(at(u"a/deep/copy"_s)));
    EXPECT_TRUE(FileSteps::copyFolder(at(u"a"_s), at(u"ab"_s), &reason));
    EXPECT_TRUE(reason.isEmpty());
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
    EXPECT_EQ(QDir(iFolder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_EQ(iLog.lines().filter(u"File too large"_s).size(), 2)
        << iLog.lines().join(u"\n"_s).toStdString();
    EXPECT_EQ(iLog.lines().size(), 2);
}

TEST_F(FileStepsTest, RemovingTakesALinkButNotItsTarget)
{
    writeTestFile(at(u"kept/file"_s), "x");
    QFile::link(at(u"kept"_s), at(u"link"_s));
    EXPECT_TRUE(FileSteps::remove(at(u"link"_s)));
    EXPECT_TRUE(FileSteps::exists(at(u"kept/file"_s)));
    EXPECT_FALSE(FileSteps::exists(at(u"link"_s)));
    EXPECT_TRUE(FileSteps::remove(at(u"never there"_s)));
}

TEST_F(FileStepsTest, FailuresAreToldAndLogged)
{
    writeTestFile(at(u"file"_s), "x");
    EXPECT_FALSE(FileSteps::makeFolders(at(u"file/below"_s)));
    EXPECT_FALSE(FileSteps::writeAtomically(at(u"missing/file"_s), "x"));
    EXPECT_FALSE(FileSteps::read(at(u"missing"_s)).has_value());
    EXPECT_FALSE(FileSteps::copyFolder(at(u"file"_s), at(u"copy"_s)));
    EXPECT_EQ(iLog.lines().size(), 4);
}
