// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "base/FileSteps.h"
#include "support/LogCapture.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using leafcast::HXCUtility;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr uid_t stranger = 12345;

/// Each test has a parent of its own in /tmp.
class WorkFolderTest : public testing::Test {
protected:
    ~WorkFolderTest() override
    {
        for (const QString& path : iMade)
            leafcast::FileSteps::remove(path);
        leafcast::FileSteps::remove(iParent);
    }

    QString make()
    {
        iMade.append(HXCUtility::forceTmpDiractory(iName));
        return iMade.last();
    }

    static mode_t mode(const QString& path)
    {
        struct stat status { };
        ::lstat(qPrintable(path), &status);
        return status.st_mode & 07777;
    }

    void expectMadeBesideTheParent(const char* reason)
    {
        const leafcast::LogCapture log;
        const QString folder = make();
        EXPECT_TRUE(folder.startsWith(iParent + u'-')) << qPrintable(folder);
        EXPECT_EQ(mode(folder), 0700u);
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_THAT(log.lines().first().toStdString(), HasSubstr(reason));
    }

    QString iName = u"leafcast-test-%1"_s.arg(::getpid());
    QString iParent = u"/tmp/"_s + iName;
    QStringList iMade;
};

} // namespace

TEST_F(WorkFolderTest, FoldersArePrivateAndDifferentInAParentForEveryone)
{
    const QString first = make();
    const QString second = make();
    EXPECT_NE(first, second);
    EXPECT_EQ(QFileInfo(first).path(), iParent);
    EXPECT_EQ(mode(first), 0700u);
    EXPECT_EQ(mode(iParent), 01777u);
}

TEST_F(WorkFolderTest, AParentOfOursIsOpenedToOthers)
{
    ::mkdir(qPrintable(iParent), 0755);
    EXPECT_EQ(QFileInfo(make()).path(), iParent);
    EXPECT_EQ(mode(iParent), 01777u);
}

TEST_F(WorkFolderTest, AParentThatIsALinkIsRefused)
{
    const QTemporaryDir elsewhere;
    std::filesystem::create_symlink(elsewhere.path().toStdString(), iParent.toStdString());
    expectMadeBesideTheParent("it is a link or not a folder");
}

TEST_F(WorkFolderTest, AParentThatIsAFileIsRefused)
{
    ASSERT_TRUE(leafcast::FileSteps::writeAtomically(iParent, "mine"));
    expectMadeBesideTheParent("it is a link or not a folder");
}

TEST_F(WorkFolderTest, AStrangersParentIsRefusedThoughItIsSticky)
{
    ::mkdir(qPrintable(iParent), 0777);
    if (::chown(qPrintable(iParent), stranger, stranger) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    for (const mode_t shared : { 0777u, 01777u, 0755u }) {
        ::chmod(qPrintable(iParent), shared);
        expectMadeBesideTheParent("it belongs to another user");
    }
}

TEST_F(WorkFolderTest, RootsParentIsTakenByEveryUserIfItIsSticky)
{
    (void)make();
    if (::seteuid(stranger) != 0)
        GTEST_SKIP() << "only root can act as another user";
    const QString folder = make();
    ::seteuid(0);
    EXPECT_EQ(QFileInfo(folder).path(), iParent);
}
