// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutputApp.h"

#include "base/FileSteps.h"
#include "publish/BookCheck.h"
#include "publish/BookFixture.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::Contains;
using testing::ElementsAre;

namespace {

class FlashBookOutputAppTest : public BookFixture {
protected:
    FlashBookOutputApp outputNamed(const QString& name) const
    {
        return { pageSource, flashTemplate, resources.path(u"book"_s), name };
    }
};

} // namespace

TEST_F(FlashBookOutputAppTest, NamesThePackageAndThePageInIt)
{
    for (const QString& name : { u"MyBook"_s, u"MyBook.html"_s }) {
        const auto output = outputNamed(name);
        EXPECT_EQ(output.outputFileName(), inBook(u"MyBook.app"_s));
        EXPECT_EQ(output.saveToFileName(), u"MyBook.app");
        EXPECT_EQ(
            output.outputHTMLFileName(), inBook(u"MyBook.app/Contents/Resources/index.html"_s));
    }
}

TEST_F(FlashBookOutputAppTest, WritesTheBookIntoAFreshCopyOfTheViewer)
{
    resources.addFile(u"AppFiles/TmplData/mac.app/Contents/Info.plist"_s, "description");
    resources.addFile(u"AppFiles/TmplData/mac.app/Contents/MacOS/viewer"_s, "program");
    resources.addFile(u"AppFiles/TmplData/mac.app/Contents/Resources/icon.png"_s, "icon");
    resources.addFile(u"book/MyBook.app/Contents/stale.txt"_s, "old");
    addPicture({ 30, 40 });
    const LogCapture log;
    auto output = outputNamed(u"MyBook"_s);
    output.ouputTheBook();
    EXPECT_EQ(bookFile(u"MyBook.app/Contents/MacOS/viewer"_s), "program");
    EXPECT_EQ(bookFile(u"MyBook.app/Contents/Resources/icon.png"_s), "icon");
    EXPECT_NE(bookFile(u"MyBook.app/Contents/Resources/files/page/1.jpg"_s), "none");
    EXPECT_NE(bookFile(u"MyBook.app/Contents/Resources/javascript/main.js"_s), "none");
    EXPECT_EQ(bookFile(u"MyBook.app/Contents/stale.txt"_s), "none");
    EXPECT_TRUE(isBookPackage(inBook(u"MyBook.app"_s)));
    EXPECT_THAT(log.lines(), ElementsAre());
    EXPECT_TRUE(BookCheck(output).isComplete());
    EXPECT_THAT(BookCheck(output).notShipped, ElementsAre());
    FileSteps::remove(inBook(u"MyBook.app/Contents/Info.plist"_s));
    EXPECT_THAT(
        BookCheck(output).missingFiles, ElementsAre(inBook(u"MyBook.app/Contents/Info.plist"_s)));
}

TEST_F(FlashBookOutputAppTest, WritesTheBookWithoutAViewerToo)
{
    const LogCapture log;
    const auto viewer = resources.path(u"AppFiles/TmplData/mac.app/Contents"_s);
    auto output = outputNamed(u"MyBook"_s);
    output.ouputTheBook();
    EXPECT_NE(bookFile(u"MyBook.app/Contents/Resources/index.html"_s), "none");
    EXPECT_THAT(log.lines(),
        Contains(
            u"ERROR FlashBookOutputApp: ouput the book,copy failed:can't copy the folder %1: it is not a folder"_s
                .arg(viewer)));
    const BookCheck check(output);
    EXPECT_TRUE(check.isComplete());
    EXPECT_THAT(check.notShipped,
        ElementsAre(
            u"the viewer of packages is not installed, so the package does not open by a double click"_s));
}
