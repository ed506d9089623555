// SPDX-License-Identifier: MIT
#include "publish/ReaderDataFile.h"

#include "publish/BookFixture.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

const auto property = &TemporaryResources::property;

class ReaderDataFileTest : public BookFixture {
protected:
    bool isWrittenFor(const QByteArray& properties)
    {
        useProperties(properties);
        writeBook();
        return QFileInfo::exists(inBook(u"files/search/book.js"_s));
    }
};

} // namespace

TEST_F(ReaderDataFileTest, ListsThePagesOfABookOfImages)
{
    addPicture({ 30, 40 });
    addPicture({ 50, 20 });
    pageSource->addImgPageFromFile(resources.path(u"missing.png"_s));
    pageSource->generateNormalPages();
    useProperties(property("pt_bool", "readerData", "yes"));
    const LogCapture log;
    writeBook();
    EXPECT_EQ(bookFile(u"files/search/book.js"_s),
        R"(var bookData = {"version":1,"pages":[)"
        R"({"number":1,"label":"1","image":"files/page/1.jpg","width":30,"height":40,"links":[],"lines":[]},)"
        R"({"number":2,"label":"2","image":"files/page/2.jpg","width":50,"height":20,"links":[],"lines":[]},)"
        R"({"number":3,"label":"3","image":"files/page/3.png","width":0,"height":0,"links":[],"lines":[]})"
        "],\"outline\":[]};\n");
}

TEST_F(ReaderDataFileTest, IsThereForASwitchThatIsOnAndGoneOtherwise)
{
    EXPECT_TRUE(isWrittenFor(property("pt_bool", "readerData", "YES")));
    EXPECT_FALSE(isWrittenFor(""));
    EXPECT_FALSE(QFileInfo::exists(inBook(u"files/search"_s)));
    EXPECT_TRUE(
        isWrittenFor(TemporaryResources::group("g", property("pt_bool", "readerData", "Show"))));
    EXPECT_FALSE(isWrittenFor(property("pt_bool", "readerData", "NO")));
    EXPECT_FALSE(isWrittenFor(property("pt_text", "readerData", "YES")));
}

TEST_F(ReaderDataFileTest, LeavesWhatElseLiesInItsFolder)
{
    ASSERT_TRUE(isWrittenFor(property("pt_bool", "readerData", "YES")));
    resources.addFile(u"book/files/search/mine.txt"_s, "mine");
    EXPECT_FALSE(isWrittenFor(""));
    EXPECT_EQ(bookFile(u"files/search/mine.txt"_s), "mine");
}

TEST_F(ReaderDataFileTest, IsGoneWhenTheDiskIsFullWhateverWasWritten)
{
    for (const int pageCount : { 1, 1000 }) {
        while (int(pageSource->normalPages().size()) < pageCount)
            pageSource->normalPages().push_back(std::make_shared<FlashPage>(u"/p/1.jpg"_s, 1));
        const QString path = inBook(u"files/search/book.js"_s);
        const ReaderBook book{ *pageSource, false, nullptr, [](const auto&) { return u"p"_s; }, 0 };
        ASSERT_TRUE(ReaderDataFile(path).write(book));

        const LogCapture log;
        const FileSizeLimit limit(60);
        EXPECT_FALSE(ReaderDataFile(path).write(book)) << pageCount;
        EXPECT_FALSE(QFileInfo::exists(path)) << pageCount;
        EXPECT_EQ(log.lines().size(), 1);
    }
}

TEST_F(ReaderDataFileTest, MapsTheOutlineToPlacesInTheBook)
{
    for (const int number : { 5, 7 })
        pageSource->normalPages().push_back(
            std::make_shared<FlashPage>(u"/p/%1.jpg"_s.arg(number), number));
    FlashOutlineItem::Items items;
    for (const int number : { 7, 9, 0 }) {
        items.push_back(std::make_shared<FlashOutlineItem>());
        items.back()->setPageIndex(number);
        items.back()->setCaption(QString::number(number));
    }
    items[0]->addChild(items[1]);
    const auto outline
        = readerOutline({ items[0], items[2] }, BookPlaces(pageSource->normalPages()));
    ASSERT_EQ(outline.size(), 2U);
    EXPECT_EQ(outline[0].place, 2);
    EXPECT_EQ(outline[0].items.at(0).page, 9);
    EXPECT_EQ(outline[0].items.at(0).place, 0);
    EXPECT_EQ(outline[1].place, 0);
}

TEST(ReaderPages, PublishesFourKindsOfAddressesOnly)
{
    for (const auto* url : { u"http://a", u"HTTPS://a", u"mailto:a@b", u"tel:+1" })
        EXPECT_TRUE(ReaderPages::isPublishableURL(QString::fromUtf16(url)));
    for (const auto* url :
        { u"javascript:alert(1)", u" https://a", u"java\nscript:x", u"file:///etc",
            u"data:text/html,x", u"ftp://a", u"//a", u"x.html", u"", u"xhttp://a" })
        EXPECT_FALSE(ReaderPages::isPublishableURL(QString::fromUtf16(url)));
}
