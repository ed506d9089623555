// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutputApp.h"

#include "publish/BookCheck.h"
#include "publish/BookFixture.h"

namespace leafcast {

using FlashBookOutputAppTest = BookFixture;

TEST_F(FlashBookOutputAppTest, WritesTheBookWithoutAViewerOrIntoAFreshCopyOfIt)
{
    const LogCapture log;
    FlashBookOutputApp output{ pageSource, flashTemplate, inBook(), u"MyBook.html"_s };
    output.ouputTheBook();
    EXPECT_FALSE(log.lines().isEmpty());
    EXPECT_TRUE(BookCheck(output).isComplete());
    EXPECT_EQ(BookCheck(output).notShipped.size(), 1);

    resources.addFile(u"AppFiles/TmplData/mac.app/Contents/Info.plist"_s, "description");
    resources.addFile(u"book/MyBook.app/Contents/stale.txt"_s, "old");
    output.ouputTheBook();
    EXPECT_EQ(bookFile(u"MyBook.app/Contents/Info.plist"_s), "description");
    EXPECT_NE(bookFile(u"MyBook.app/Contents/Resources/index.html"_s), "none");
    EXPECT_EQ(bookFile(u"MyBook.app/Contents/stale.txt"_s), "none");
    EXPECT_TRUE(isBookPackage(inBook(u"MyBook.app"_s)));
    EXPECT_TRUE(BookCheck(output).isComplete() && BookCheck(output).notShipped.isEmpty());
}

} // namespace leafcast
