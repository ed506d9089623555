// SPDX-License-Identifier: MIT
#include "publish/ReaderDataFiles.h"

#include "publish/BookFixture.h"
#include "support/FileSizeLimit.h"

namespace leafcast {

class ReaderDataFilesTest : public BookFixture {
protected:
    QByteArray writtenFor(const QByteArray& properties)
    {
        useProperties(properties);
        writeBook();
        return bookFile(u"files/search/book.js"_s);
    }
};

TEST_F(ReaderDataFilesTest, ListThePagesOfABookOfImagesWhileItsSwitchIsOn)
{
    addPage(1, picture({ 30, 40 }));
    addPage(2, "no picture", u".png"_s);
    EXPECT_EQ(writtenFor(TemporaryResources::group("g", readerData)),
        R"(var bookData = {"version":2,"textStarts":[],"pages":[{"number":1,"label":"1","image":"files/page/1.jpg",)"
        R"("width":30,"height":40,"links":[]},{"number":2,"label":"2",)"
        R"("image":"files/page/2.png","width":0,"height":0,"links":[]}],"outline":[]};)"
        "\n");
    resources.addFile(u"book/files/search/mine.txt"_s, "mine");
    EXPECT_EQ(writtenFor(TemporaryResources::property("pt_bool", "readerData", "NO")), "none");
    EXPECT_EQ(bookFile(u"files/search/mine.txt"_s), "mine");
}

TEST_F(ReaderDataFilesTest, AreGoneWhenTheDiskIsFullWhateverWasWritten)
{
    const LogCapture log;
    const ReaderDataFiles files(inBook(u"files/search"_s));
    pageSource->normalPages().resize(1000, std::make_shared<FlashPage>(u"/p/1.jpg"_s, 1));
    const ReaderBook book{ *pageSource, false, nullptr, [](const auto&) { return u"p"_s; }, 0 };
    ASSERT_TRUE(files.write(book));
    const FileSizeLimit limit(60);
    EXPECT_FALSE(files.write(book));
    EXPECT_FALSE(FileSteps::exists(files.bookFile()));
}

TEST(ReaderPages, PublishesFourKindsOfAddressesOnly)
{
    for (const QString& url : { u"http://a"_s, u"HTTPS://a"_s, u"mailto:a@b"_s, u"tel:+1"_s })
        EXPECT_TRUE(ReaderPages::isPublishableURL(url)) << url.toStdString();
    for (const QString& url : { u"javascript:a"_s, u" https://a"_s, u"java\nscript:x"_s,
             u"file:///etc"_s, u"data:text/html,x"_s, u"//a"_s, u"x.html"_s, u""_s })
        EXPECT_FALSE(ReaderPages::isPublishableURL(url)) << url.toStdString();
}

} // namespace leafcast
