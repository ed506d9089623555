// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "base/FileSteps.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

constexpr uid_t stranger = 12345;

/// Each test has a parent of its own in /tmp.
class WorkFolderTest : public testing::Test {
protected:
    ~WorkFolderTest() override
    {
        for (const QString& path : iMade + QStringList(iParent))
            leafcast::FileSteps::remove(path);
    }
    QString parentOfANewFolder()
    {
        iMade.append(leafcast::HXCUtility::forceTmpDiractory(iName));
        EXPECT_EQ(fs::status(iMade.last().toStdString()).permissions(), fs::perms{ 0700 });
        return QFileInfo(iMade.last()).path();
    }

    QString iName = u"leafcast-test-%1"_s.arg(::getpid());
    QString iParent = u"/tmp/"_s + iName;
    QStringList iMade;
};

} // namespace

TEST_F(WorkFolderTest, FoldersArePrivateAndDifferentInAParentThatIsOpenedToEveryone)
{
    ::mkdir(qPrintable(iParent), 0755);
    EXPECT_EQ(parentOfANewFolder(), iParent);
    EXPECT_EQ(parentOfANewFolder(), iParent);
    EXPECT_NE(iMade.first(), iMade.last());
    EXPECT_EQ(fs::status(iParent.toStdString()).permissions(), fs::perms{ 01777 });
}

TEST_F(WorkFolderTest, AParentThatIsALinkOrAStrangersIsRefusedThoughItIsSticky)
{
    const QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), iParent));
    EXPECT_EQ(parentOfANewFolder(), u"/tmp"_s);
    QFile::remove(iParent);
    ::mkdir(qPrintable(iParent), 0777);
    ::chmod(qPrintable(iParent), 01777);
    if (::chown(qPrintable(iParent), stranger, stranger) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    EXPECT_EQ(parentOfANewFolder(), u"/tmp"_s);
}

TEST_F(WorkFolderTest, RootsParentIsTakenByEveryUserIfItIsSticky)
{
    (void)parentOfANewFolder();
    if (::seteuid(stranger) != 0)
        GTEST_SKIP() << "only root can act as another user";
    const QString parent = parentOfANewFolder();
    ::seteuid(0);
    EXPECT_EQ(parent, iParent);
}
