// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "base/FileSteps.h"
#include "publish/BookFixture.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::Contains;
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
    FileSteps::remove(resources.path(u"AppFiles/Templates/float/style"_s));

    const LogCapture log;
    const auto output = newOutput();
    output->ouputTheBook();
    const BookCheck check(*output);
    EXPECT_THAT(check.pagesWithoutPicture, ElementsAre(2));
    EXPECT_THAT(check.missingFiles,
        ElementsAre(inBook(u"index.html"_s), inBook(u"javascript/jquery-1.7.2.min.js"_s),
            inBook(u"javascript/main.js"_s), inBook(u"style"_s), inBook(u"files/search/book.js"_s),
            inBook(u"files/extfile/logo.png"_s)));
    EXPECT_FALSE(isBookFolder(inBook(u""_s)));
}

TEST_F(BookCheckTest, FindsWhatStayedFromAnEarlierBookOnAFullDisk)
{
    useProperties(TemporaryResources::property("pt_bool", "readerData", "YES")
        + TemporaryResources::property("pt_file", "logo", pictureFile(1).toUtf8()));
    addPicture({ 30, 40 });
    addPicture({ 30, 40 });
    const QString style = resources.addFile(u"AppFiles/Templates/float/style/z.css"_s, "/**/");
    const auto earlier = newOutput();
    earlier->ouputTheBook();
    ASSERT_TRUE(BookCheck(*earlier).isComplete());

    writeTestFile(pictureFile(1), "another picture");
    writeTestFile(style, "/* another style */");
    const auto annotations = std::make_shared<FlashPagesAnnotations>();
    annotations->setNeedFiles({ style });
    const auto output = newOutput();
    output->setFlashPagesAnnotations(annotations);
    output->setHTMLConfig(std::make_shared<HTMLConfigInfo>());
    const LogCapture log;
    {
        const FileSizeLimit limit(8);
        output->ouputTheBook();
    }
    const BookCheck check(*output);
    EXPECT_THAT(check.pagesWithoutPicture, ElementsAre(1));
    EXPECT_THAT(check.missingFiles,
        ElementsAre(inBook(u"index.html"_s), inBook(u"javascript/main.js"_s), inBook(u"style"_s),
            inBook(u"files/search/book.js"_s), inBook(u"files/extfile/logo.jpg"_s),
            inBook(u"files/pageConfig/z.css"_s)));
}

TEST_F(BookCheckTest, TellsOfAServerThatIsNotInstalledAndOfOneThatCouldNotBeCopied)
{
    addPicture({ 30, 40 });
    const QString server = resources.path(u"Lib/iPadPreview"_s);
    const LogCapture log;
    {
        const auto output = newOutput();
        const FileSizeLimit limit(1);
        output->ouputTheBook();
        EXPECT_THAT(BookCheck(*output).missingFiles, Contains(inBook(u"iPadPreview"_s)));
    }
    FileSteps::remove(server);
    const auto output = newOutput();
    output->ouputTheBook();
    EXPECT_TRUE(BookCheck(*output).isComplete());
    EXPECT_THAT(
        BookCheck(*output).notShipped, ElementsAre(u"the preview server is not installed"_s));
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
