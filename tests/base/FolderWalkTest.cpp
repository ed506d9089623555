// SPDX-License-Identifier: MIT
#include "base/FolderWalk.h"
#include "base/NaturalOrder.h"

#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(FolderWalk, ListsFoldersBeforeTheirContentInNaturalOrder)
{
    const QTemporaryDir folder;
    for (const auto& name : { u"10/x"_s, u"2/b"_s, u"2/a"_s, u"B/y"_s, u"a/z"_s })
        QDir(folder.path()).mkpath(name);
    writeTestFile(folder.filePath(u"2/file"_s), "");
    QFile::link(folder.path(), folder.filePath(u"loop"_s));

    const QStringList found = FolderWalk::subfolders(folder.path());
    EXPECT_EQ(found.join(u' ').remove(folder.path() + u'/'), u"2 2/a 2/b 10 10/x B B/y a a/z"_s);
    EXPECT_TRUE(FolderWalk::subfolders(folder.filePath(u"missing"_s)).isEmpty());
}

TEST(NaturalOrder, ComparesDigitRunsAsNumbersOfAnyLength)
{
    EXPECT_TRUE(naturalLess(u"a99999999999999999999998", u"a99999999999999999999999"));
    EXPECT_FALSE(naturalLess(u"7", u"7"));
    EXPECT_NE(naturalLess(u"007", u"7"), naturalLess(u"7", u"007"));
}
