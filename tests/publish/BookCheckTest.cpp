// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "base/FileSteps.h"
#include "publish/BookFixture.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;

namespace {

class BookCheckTest : public BookFixture { };

} // namespace

TEST_F(BookCheckTest, FindsNothingMissingInACompleteBook)
{
    addPicture({ 30, 40 });
    const auto output = newOutput();
    output->ouputTheBook();
    EXPECT_TRUE(BookCheck(*output).isComplete());
    EXPECT_TRUE(isBookFolder(inBook(u""_s)));
    EXPECT_FALSE(isBookPackage(inBook(u""_s)));
}

TEST_F(BookCheckTest, NamesWhatIsMissing)
{
    useProperties(TemporaryResources::group(
                      "look", TemporaryResources::property("pt_file", "logo", "/nowhere/a.png"))
        + TemporaryResources::property("pt_bool", "readerData", "YES"));
    addPicture({ 30, 40 });
    pageSource->addImgPageFromFile(u"/nowhere/2.jpg"_s);
    pageSource->generateNormalPages();
    resources.addFile(u"book/files/search"_s, "in the way");
    FileSteps::remove(resources.path(u"AppFiles/Templates/float/index.html"_s));
    FileSteps::remove(resources.path(u"AppFiles/Templates/float/javascript"_s));

    const LogCapture log;
    const auto output = newOutput();
    output->ouputTheBook();
    const BookCheck check(*output);
    EXPECT_THAT(check.pagesWithoutPicture, ElementsAre(2));
    EXPECT_THAT(check.missingFiles,
        ElementsAre(inBook(u"index.html"_s), inBook(u"javascript/main.js"_s),
            inBook(u"files/search/book.js"_s), inBook(u"files/extfile/logo.png"_s)));
    EXPECT_FALSE(isBookFolder(inBook(u""_s)));
}

TEST_F(BookCheckTest, TakesNoOtherFolderForABook)
{
    EXPECT_FALSE(isBookFolder(resources.path(u"missing"_s)));
    resources.addFile(u"site/javascript/main.js"_s, "var bookConfig = {};");
    EXPECT_FALSE(isBookFolder(resources.path(u"site"_s)));
    resources.addFile(u"site/files/page/1.jpg"_s, "");
    EXPECT_TRUE(isBookFolder(resources.path(u"site"_s)));
    resources.addFile(u"site/javascript/main.js"_s, "other");
    EXPECT_FALSE(isBookFolder(resources.path(u"site"_s)));
}
