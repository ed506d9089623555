// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "publish/BookFixture.h"
#include "support/FileSizeLimit.h"

#include <gmock/gmock.h>

namespace leafcast {

using testing::ElementsAre;

class BookCheckTest : public BookFixture {
protected:
    void expectMissing(const FlashBookOutput& output, const QString& files) const
    {
        EXPECT_EQ(BookCheck(output).missingFiles.join(u' ').remove(inBook()), files);
    }
};

TEST_F(BookCheckTest, NamesWhatIsMissing)
{
    const LogCapture log;
    useProperties(readerData + TemporaryResources::property("pt_file", "logo", "/nowhere/a.png"));
    addPage(1, "picture");
    pageSource->pages().push_back(std::make_shared<FlashPage>(u"/nowhere/2.jpg"_s, 2));
    pageSource->generateNormalPages();
    resources.addFile(u"book/files/search"_s, "in the way");
    for (const QString& part : { u"index.html"_s, u"javascript"_s, u"style"_s })
        FileSteps::remove(resources.path(templateFolder + part));
    const auto output = newOutput();
    output->ouputTheBook();
    EXPECT_THAT(BookCheck(*output).pagesWithoutPicture, ElementsAre(2));
    expectMissing(*output,
        u"index.html javascript/jquery-1.7.2.min.js javascript/main.js style files/search/book.js "
        "files/extfile/logo.png"_s);
    EXPECT_FALSE(isBookFolder(inBook()));
}

TEST_F(BookCheckTest, FindsWhatStayedFromAnEarlierBookOnAFullDisk)
{
    const LogCapture log;
    addPage(1, "picture");
    useProperties(readerData
        + TemporaryResources::property("pt_file", "logo", resources.path(u"1.jpg"_s).toUtf8()));
    const auto output = newOutput();
    output->ouputTheBook();
    EXPECT_TRUE(BookCheck(*output).isComplete());
    EXPECT_TRUE(isBookFolder(inBook()));
    resources.addFile(u"1.jpg"_s, "another picture");
    output->setHTMLConfig(std::make_shared<HTMLConfigInfo>());
    const FileSizeLimit limit(1);
    output->ouputTheBook();
    EXPECT_THAT(BookCheck(*output).pagesWithoutPicture, ElementsAre(1));
    expectMissing(*output,
        u"index.html javascript/jquery-1.7.2.min.js javascript/main.js style files/search/book.js "
        "files/extfile/logo.jpg"_s);
}

} // namespace leafcast
