// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using leafcast::HXCUtility;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(HXCUtility, ListsImagesBySmallLetteredExtensionInNaturalOrder)
{
    const QTemporaryDir folder;
    for (const auto& name : { u"10.jpg"_s, u"2.jpg"_s, u"b.PNG"_s, u"c.png"_s, u"d.jpeg"_s })
        leafcast::writeTestFile(folder.filePath(name), {});
    EXPECT_THAT(HXCUtility::imageFilesOfDiractoryAtPath(folder.path()),
        ElementsAre(u"2.jpg"_s, u"10.jpg"_s, u"c.png"_s));
    EXPECT_THAT(HXCUtility::imageFilesOfDiractoryAtPath(u"/no/such/folder"_s), IsEmpty());
}

TEST(HXCUtility, ListsFoldersAtEveryDepthAsFullPaths)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"a/b"_s);
    QDir(folder.path()).mkpath(u"c"_s);
    EXPECT_THAT(HXCUtility::subFolderOfFolder(folder.path()),
        ElementsAre(folder.filePath(u"a"_s), folder.filePath(u"a/b"_s), folder.filePath(u"c"_s)));
    EXPECT_THAT(HXCUtility::subFolderOfFolder(u"/no/such/folder"_s), IsEmpty());
}

TEST(HXCUtility, FindsATemporaryFolder)
{
    EXPECT_TRUE(QFile::exists(HXCUtility::tmpDiractoryForCurrentUser()));
}
