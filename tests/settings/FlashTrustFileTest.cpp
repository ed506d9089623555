// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashTrustFileTest : public testing::Test {
protected:
    static QByteArray utf16(const QString& text)
    {
        QByteArray bytes("\xFF\xFE", 2);
        for (const QChar c : text)
            bytes.append(static_cast<char>(c.cell())).append(static_cast<char>(c.row()));
        return bytes;
    }

    QTemporaryDir iFolder;
    FlashTrustFolders iFolders{ iFolder.filePath(u"machine"_s), iFolder.filePath(u"fixed"_s) };
    QString iTrustFile = iFolder.filePath(u"machine/Macromedia/FlashPlayerTrust/PT.cfg"_s);
};

} // namespace

TEST_F(FlashTrustFileTest, HoldsEachPathOnceAndNoTrailingLineFeed)
{
    HXCUtility::makeDiractoryTrustByFlash(u"/tmp/xy"_s, iFolders);
    EXPECT_EQ(readTestFile(iTrustFile), utf16(u"/tmp/xy"_s));
    HXCUtility::makeDiractoryTrustByFlash(u"/tmp/x"_s, iFolders);
    HXCUtility::makeDiractoryTrustByFlash(u"/tmp/ä"_s, iFolders);
    HXCUtility::makeDiractoryTrustByFlash(u"/tmp/xy"_s, iFolders);
    EXPECT_EQ(readTestFile(iTrustFile), utf16(u"/tmp/xy\n/tmp/x\n/tmp/ä"_s));
    EXPECT_TRUE(QFile::exists(iFolder.filePath(u"fixed/Macromedia/FlashPlayerTrust"_s)));
}

TEST_F(FlashTrustFileTest, ReadsEitherByteOrder)
{
    writeTestFile(iTrustFile, QByteArray("\xFE\xFF\0A", 4));
    HXCUtility::makeDiractoryTrustByFlash(u"B"_s, iFolders);
    EXPECT_EQ(readTestFile(iTrustFile), utf16(u"A\nB"_s));
}

TEST_F(FlashTrustFileTest, LeavesAFileThatIsNotUtf16)
{
    const QByteArray odd("\xFF\xFE"
                         "A",
        3);
    writeTestFile(iTrustFile, odd);
    const LogCapture log;
    HXCUtility::makeDiractoryTrustByFlash(u"B"_s, iFolders);
    EXPECT_EQ(readTestFile(iTrustFile), odd);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(FlashTrustFileTest, WithoutAFolderOfTheMachineTheFixedOneGetsACopyBesideTheTrustFolder)
{
    iFolders.localDomainFolder.clear();
    HXCUtility::makeDiractoryTrustByFlash(u"A"_s, iFolders);
    const QString folder = iFolder.filePath(u"fixed/Macromedia/FlashPlayerTrust"_s);
    EXPECT_EQ(readTestFile(folder + u"/PT.cfg"_s), utf16(u"A"_s));
    EXPECT_EQ(readTestFile(folder + u".PT.cfg"_s), utf16(u"A"_s));
}

TEST_F(FlashTrustFileTest, SaysInTheLogWhetherTheFileIsThere)
{
    const LogCapture log(LogLevel::Debug);
    HXCUtility::makeDiractoryTrustByFlash(u"A"_s, iFolders);
    EXPECT_THAT(log.lines(),
        testing::ElementsAre(u"DEBUG HXCUtility: trust folder is:"_s + iTrustFile,
            u"DEBUG HXCUtility: file is exits!!"_s));
}

TEST_F(FlashTrustFileTest, AFolderThatCannotBeMadeIsOnlyLogged)
{
    writeTestFile(iFolders.localDomainFolder, "a file where the folder must be");
    const LogCapture log(LogLevel::Debug);
    HXCUtility::makeDiractoryTrustByFlash(u"A"_s, iFolders);
    EXPECT_EQ(log.lines().last(), u"DEBUG HXCUtility: file doest not exits!!!!!!!!!"_s);
}

TEST(FlashTrustFolders, AreTheFirstDataFolderOfTheMachine)
{
    const QByteArray former = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_DIRS", "/opt/share:/usr/share");
    EXPECT_EQ(FlashTrustFolders::standard().localDomainFolder, u"/opt/share"_s);
    qunsetenv("XDG_DATA_DIRS");
    EXPECT_EQ(FlashTrustFolders::standard().fixedFolder, u"/usr/local/share"_s);
    qputenv("XDG_DATA_DIRS", former);
}
