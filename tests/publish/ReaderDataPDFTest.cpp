// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourceCopy.h"
#include "pages/FlashPageSourcePDF.h"
#include "publish/BookContent.h"
#include "publish/BookFixture.h"
#include "publish/PublishNotifications.h"
#include "support/FileSizeLimit.h"
#include "support/Gate.h"
#include "support/PDFBuilder.h"

#include <future>
#include <gtest/gtest.h>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>
#include <sys/stat.h>

namespace leafcast {

class ReaderDataPDFTest : public BookFixture {
protected:
    ReaderDataPDFTest() { useProperties(readerData); }

    void import(const PDFBuilder& pdf, const QString& range)
    {
        source = std::make_shared<FlashPageSourcePDF>(
            resources.addFile(u"book.pdf"_s, pdf.build()), range, 72, 0);
        source->generatePages();
        source->generateNormalPages();
    }

    QJsonObject bookData(const std::shared_ptr<FlashOutline>& outline = nullptr) const
    {
        FlashBookOutput output(source, flashTemplate, inBook(), QString());
        output.setFlashPagesAnnotations(std::make_shared<FlashPagesAnnotations>());
        output.setFlashOutline(outline);
        output.ouputTheBook();
        QByteArray script = bookFile(u"files/search/book.js"_s);
        script.replace("var bookData = ", "").replace("};\n", "}");
        return QJsonDocument::fromJson(script).object();
    }

    /// The lines of each page of a text file.
    QJsonArray texts(int number) const
    {
        QByteArray script = bookFile(u"files/search/text-%1.js"_s.arg(number));
        script.replace("bookText(" + QByteArray::number(number) + ',', "").replace("]);\n", "]");
        return QJsonDocument::fromJson(script).array();
    }

    QStringList searchFiles() const
    {
        return QDir(inBook(u"files/search"_s)).entryList(QDir::Files, QDir::Name);
    }

    /// Changes when another file takes the place of this one.
    ino_t identity(const QString& file) const
    {
        struct stat status { };
        EXPECT_EQ(stat(QFile::encodeName(inBook(file)).constData(), &status), 0);
        return status.st_ino;
    }

    /// Another book of the pages, written on a thread of its own into a folder beside.
    struct Other {
        std::shared_ptr<FlashPageSourceCopy> pages;
        std::future<void> end;
    };
    Other writeOther(const QString& name) const
    {
        const auto pages = std::make_shared<FlashPageSourceCopy>(source);
        QDir().mkpath(resources.path(name));
        const auto output = std::make_shared<FlashBookOutput>(
            pages, flashTemplate, resources.path(name), QString());
        return { pages, std::async(std::launch::async, [output] { output->ouputTheBook(); }) };
    }
    bool hasReaderData(const QString& name) const
    {
        return FileSteps::exists(resources.path(name + u"/files/search/book.js"_s));
    }

    template <typename Condition> static void waitFor(Condition condition)
    {
        const QDeadlineTimer patience(patienceLimit);
        while (!condition() && !patience.hasExpired())
            QThread::msleep(1);
        ASSERT_TRUE(condition());
    }

    static constexpr std::chrono::seconds patienceLimit{ 60 };
    std::shared_ptr<FlashPageSourcePDF> source;
};

TEST_F(ReaderDataPDFTest, HasAreasAsDisplayedForEveryRotationAndCropBox)
{
    PDFBuilder pdf;
    for (const int rotation : { 0, 90, 180, 270 }) {
        const int index = pdf.addPage({ .cropBox = PDFBuilder::Box{ 100, 50, 300, 150 },
            .rotation = rotation,
            .content = PDFBuilder::showText("Leaf", 120, 100) });
        // A tenth in from the left and two tenths down from the top of the unrotated page.
        pdf.addURLLink(index, { 120, 90, 180, 130 }, "https://leaf.example/");
    }
    import(pdf, u"ALL"_s);
    const QJsonArray pages = bookData()[u"pages"].toArray();
    const double corners[4][2] = { { 0.1, 0.2 }, { 0.4, 0.1 }, { 0.6, 0.4 }, { 0.2, 0.6 } };
    for (int page = 0; page < 4; ++page) {
        const auto link = pages[page][u"links"][0];
        EXPECT_NEAR(link[u"x"].toDouble(), corners[page][0], 1e-4);
        EXPECT_NEAR(link[u"y"].toDouble(), corners[page][1], 1e-4);
        EXPECT_NEAR(link[u"width"].toDouble(), page % 2 == 0 ? 0.3 : 0.4, 1e-4);
        EXPECT_NEAR(link[u"height"].toDouble(), page % 2 == 0 ? 0.4 : 0.3, 1e-4);
        EXPECT_EQ(pages[page][u"width"].toInt() > pages[page][u"height"].toInt(), page % 2 == 0);
    }
    const QJsonValue line = texts(1)[0][0];
    EXPECT_EQ(line[u"text"].toString(), u"Leaf");
    // The word's own box begins where the link does.
    EXPECT_NEAR(line[u"boxes"][0][0].toDouble(), 0.1, 0.01);
}

TEST_F(ReaderDataPDFTest, HasTextFilesOfLikeSizeWhileAnyPageHasText)
{
    QByteArray dense;
    for (int line = 0; line < 60; ++line)
        dense += PDFBuilder::showText("Leaf after leaf after leaf after leaf", 20, 780 - 12 * line);
    PDFBuilder pdf;
    for (const QByteArray& content : { QByteArray(), dense, dense, QByteArray(), dense, dense,
             dense, QByteArray(), QByteArray() })
        pdf.addPage({ .content = content });
    import(pdf, u"ALL"_s);
    // A dense page has some 15 KB.
    EXPECT_EQ(bookData()[u"textStarts"], QJsonArray({ 1, 6 }));
    EXPECT_EQ(texts(1).size(), 5);
    EXPECT_EQ(texts(1)[0], QJsonArray());
    EXPECT_EQ(texts(1)[1].toArray().size(), 60);
    EXPECT_EQ(texts(2).size(), 4);

    resources.addFile(u"book/files/search/text-0.js"_s, "another's");
    import(pdf, u"4-9"_s);
    EXPECT_EQ(bookData()[u"textStarts"], QJsonArray({ 1 }));
    EXPECT_EQ(searchFiles(), QStringList({ u"book.js"_s, u"text-0.js"_s, u"text-1.js"_s }));
    const BookContent content(FlashBookOutput(source, flashTemplate, inBook(), QString()));
    EXPECT_TRUE(content.contains(u"files/search/text-1.js"_s));
    EXPECT_FALSE(content.contains(u"files/search/text-0.js"_s));
    import(pdf, u"8-9"_s);
    EXPECT_EQ(bookData()[u"textStarts"], QJsonArray());
    EXPECT_EQ(searchFiles(), QStringList({ u"book.js"_s, u"text-0.js"_s }));
}

TEST_F(ReaderDataPDFTest, LeavesFilesAloneThatAreAsTheyWere)
{
    PDFBuilder pdf;
    pdf.addPage({ .content = PDFBuilder::showText("Leaf", 120, 100) });
    import(pdf, u"ALL"_s);
    bookData();
    const QStringList files = { u"files/search/book.js"_s, u"files/search/text-1.js"_s };
    const ino_t before[] = { identity(files[0]), identity(files[1]) };
    bookData();
    EXPECT_EQ(identity(files[0]), before[0]);
    EXPECT_EQ(identity(files[1]), before[1]);
}

TEST_F(ReaderDataPDFTest, MapsTargetsToPlacesAndDropsUnsafeAddresses)
{
    PDFBuilder pdf;
    for (int page = 0; page < 5; ++page)
        pdf.addPage();
    pdf.setPageLabels("0 << /S /r >> 3 << /S /D /P (A-) >>");
    pdf.addURLLink(1, { 0, 0, 100, 100 }, "javascript:alert(1)");
    pdf.addPageLink(1, { 0, 0, 100, 100 }, 3);
    pdf.addPageLink(1, { 0, 0, 100, 100 }, 4);
    pdf.addURLLink(1, { 900, 900, 950, 950 }, "https://outside.example/");
    import(pdf, u"2,4,9"_s);
    const auto outline = std::make_shared<FlashOutline>();
    outline->items().push_back(std::make_shared<FlashOutlineItem>());
    outline->items().front()->setPageIndex(4);
    const QJsonObject data = bookData(outline);
    EXPECT_EQ(data[u"outline"][0][u"place"], 2);
    EXPECT_EQ(data[u"pages"][0][u"label"].toString(), u"ii");
    EXPECT_EQ(data[u"pages"][1][u"label"].toString(), u"A-1");
    EXPECT_EQ(data[u"pages"][2][u"width"], 0);
    const QJsonArray links = data[u"pages"][0][u"links"].toArray();
    ASSERT_EQ(links.size(), 2);
    EXPECT_EQ(links[0][u"place"], 2);
    EXPECT_EQ(links[1][u"place"], 0);
}

TEST_F(ReaderDataPDFTest, IsReadOnceForBooksThatAreWrittenAtTheSameTime)
{
    PDFBuilder pdf;
    for (int page = 0; page < 4; ++page)
        pdf.addPage({ .content = PDFBuilder::showText("Leaf", 120, 100) });
    import(pdf, u"ALL"_s);
    std::atomic<int> pagesRead = 0;
    const auto counting = NotificationCenter::defaultCenter().addObserver(
        ReaderDataProgressMSG, [&](const Notification&) { ++pagesRead; });
    Gate gate(ReaderDataProgressMSG, 1);
    Other first = writeOther(u"first"_s);
    waitFor([&] { return gate.isReached(); });
    Other second = writeOther(u"second"_s);
    Other stopped = writeOther(u"stopped"_s);
    // The step before the reader data.
    for (const QString& name : { u"second"_s, u"stopped"_s })
        waitFor([&] { return FileSteps::exists(resources.path(name + u"/javascript/main.js"_s)); });
    stopped.pages->setStop(true);
    EXPECT_EQ(stopped.end.wait_for(patienceLimit), std::future_status::ready);
    EXPECT_FALSE(hasReaderData(u"stopped"_s));

    gate.open();
    first.end.get();
    second.end.get();
    EXPECT_EQ(pagesRead, 4);
    EXPECT_TRUE(hasReaderData(u"first"_s));
    EXPECT_TRUE(hasReaderData(u"second"_s));
}

TEST_F(ReaderDataPDFTest, LeavesNothingWhenTheDiskIsFullOrItIsStopped)
{
    PDFBuilder pdf;
    pdf.addPage({ .content = PDFBuilder::showText("Leaf", 120, 100) });
    import(pdf, u"ALL"_s);
    ASSERT_FALSE(bookData().isEmpty());
    ASSERT_FALSE(texts(1).isEmpty());
    // With another outline nothing that was kept will do.
    const auto outline = std::make_shared<FlashOutline>();
    outline->items().push_back(std::make_shared<FlashOutlineItem>());
    const LogCapture log;
    {
        const FileSizeLimit limit(20);
        EXPECT_TRUE(bookData(outline).isEmpty());
        EXPECT_FALSE(FileSteps::exists(inBook(u"files/search"_s)));
    }
    ASSERT_FALSE(bookData().isEmpty());
    source->setStop(true);
    EXPECT_TRUE(bookData(outline).isEmpty());
    EXPECT_FALSE(FileSteps::exists(inBook(u"files/search"_s)));
}

} // namespace leafcast
