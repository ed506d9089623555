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

    QStringList relative;
    for (const QString& path : FolderWalk::subfolders(folder.path()))
        relative.append(path.mid(folder.path().size() + 1));

    EXPECT_EQ(relative.join(u' '), u"2 2/a 2/b 10 10/x B B/y a a/z"_s);
    EXPECT_TRUE(FolderWalk::subfolders(folder.filePath(u"missing"_s)).isEmpty());
}

TEST(NaturalOrder, ComparesDigitRunsAsNumbersOfAnyLength)
{
    EXPECT_TRUE(naturalLess(u"2.jpg", u"10.jpg"));
    EXPECT_TRUE(naturalLess(u"page 9 of 10", u"page 9 of 20"));
    EXPECT_TRUE(naturalLess(u"a99999999999999999999998", u"a99999999999999999999999"));
    EXPECT_TRUE(naturalLess(u"a", u"a1"));
    EXPECT_FALSE(naturalLess(u"7", u"7"));
    EXPECT_NE(naturalLess(u"007", u"7"), naturalLess(u"7", u"007"))
        << "equal numbers still have an order";
}
