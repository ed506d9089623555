// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourcePDF.h"
#include "publish/BookFixture.h"
#include "support/LogCapture.h"
#include "support/PDFBuilder.h"

#include <gtest/gtest.h>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class ReaderDataPDFTest : public BookFixture {
protected:
    ReaderDataPDFTest()
    {
        useProperties(TemporaryResources::property("pt_bool", "readerData", "YES"));
    }

    void import(const PDFBuilder& pdf, const QString& range)
    {
        document = resources.addFile(u"book.pdf"_s, pdf.build());
        source = std::make_shared<FlashPageSourcePDF>(document, range, 72, 0);
        source->generatePages();
        source->generateNormalPages();
    }

    QJsonObject bookData(const std::shared_ptr<FlashOutline>& outline = nullptr) const
    {
        FlashBookOutput output(source, flashTemplate, inBook(u""_s), QString());
        output.setFlashPagesAnnotations(std::make_shared<FlashPagesAnnotations>());
        output.setFlashOutline(outline);
        output.ouputTheBook();
        QByteArray script = bookFile(u"files/search/book.js"_s);
        script.replace("var bookData = ", "").replace("};\n", "}");
        return QJsonDocument::fromJson(script).object();
    }

    QString document;
    std::shared_ptr<FlashPageSourcePDF> source;
};

void expectArea(const QJsonObject& link, double x, double y, double width, double height)
{
    EXPECT_NEAR(link[u"x"].toDouble(), x, 1e-4);
    EXPECT_NEAR(link[u"y"].toDouble(), y, 1e-4);
    EXPECT_NEAR(link[u"width"].toDouble(), width, 1e-4);
    EXPECT_NEAR(link[u"height"].toDouble(), height, 1e-4);
}

} // namespace

TEST_F(ReaderDataPDFTest, HasAreasAsDisplayedForEveryRotationAndCropBox)
{
    PDFBuilder pdf;
    for (const int rotation : { 0, 90, 180, 270 }) {
        PDFBuilder::Page page;
        page.cropBox = PDFBuilder::Box{ 100, 50, 300, 150 };
        page.rotation = rotation;
        page.content = PDFBuilder::showText("Leaf", 120, 100);
        const int index = pdf.addPage(page);
        // A tenth in from the left and two tenths down from the top of the unrotated page.
        pdf.addURLLink(index, { 120, 100, 180, 130 }, "https://leaf.example/");
    }
    import(pdf, u"ALL"_s);
    const QJsonArray pages = bookData()[u"pages"].toArray();
    ASSERT_EQ(pages.size(), 4);
    const auto link = [&](int page) { return pages[page][u"links"][0].toObject(); };
    expectArea(link(0), 0.1, 0.2, 0.3, 0.3);
    expectArea(link(1), 0.5, 0.1, 0.3, 0.3);
    expectArea(link(2), 0.6, 0.5, 0.3, 0.3);
    expectArea(link(3), 0.2, 0.6, 0.3, 0.3);
    for (int page = 0; page < 4; ++page) {
        EXPECT_EQ(pages[page][u"width"].toInt() > pages[page][u"height"].toInt(), page % 2 == 0);
        EXPECT_EQ(pages[page][u"lines"][0][u"text"].toString(), u"Leaf");
    }
    // The word's own box begins where the link does.
    EXPECT_NEAR(pages[0][u"lines"][0][u"boxes"][0][0].toDouble(), 0.1, 0.01);
    EXPECT_NEAR(pages[2][u"lines"][0][u"boxes"][0][0].toDouble()
            + pages[2][u"lines"][0][u"boxes"][0][2].toDouble(),
        0.9, 0.01);
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
    pdf.addURLLink(1, { 0, 0, 100, 100 }, "mailto:leaf@leaf.example");
    import(pdf, u"2,4"_s);

    const QJsonArray pages = bookData()[u"pages"].toArray();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[0][u"number"], 2);
    EXPECT_EQ(pages[0][u"label"].toString(), u"ii");
    EXPECT_EQ(pages[0][u"image"].toString(), u"files/page/2.jpg");
    EXPECT_EQ(pages[1][u"label"].toString(), u"A-1");
    const QJsonArray links = pages[0][u"links"].toArray();
    ASSERT_EQ(links.size(), 3);
    EXPECT_EQ(links[0][u"page"], 4);
    EXPECT_EQ(links[0][u"place"], 2);
    EXPECT_EQ(links[1][u"page"], 5);
    EXPECT_EQ(links[1][u"place"], 0);
    EXPECT_EQ(links[2][u"url"].toString(), u"mailto:leaf@leaf.example");
}

TEST_F(ReaderDataPDFTest, KeepsAPageThatTheDocumentDoesNotHave)
{
    PDFBuilder pdf;
    pdf.addPage();
    import(pdf, u"1,9"_s);
    const QJsonArray pages = bookData()[u"pages"].toArray();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_GT(pages[0][u"width"].toInt(), 0);
    EXPECT_EQ(pages[1][u"number"], 9);
    EXPECT_EQ(pages[1][u"width"], 0);
}

TEST_F(ReaderDataPDFTest, ReadsTheDocumentOnceForSeveralOutputs)
{
    PDFBuilder pdf;
    PDFBuilder::Page page;
    page.content = PDFBuilder::showText("Leaf", 100, 100);
    pdf.addPage(page);
    import(pdf, u"ALL"_s);
    const QJsonObject first = bookData();
    EXPECT_EQ(first[u"pages"][0][u"lines"][0][u"text"].toString(), u"Leaf");

    QFile::remove(document);
    QFile::remove(inBook(u"files/search/book.js"_s));
    EXPECT_EQ(bookData(), first);

    auto outline = std::make_shared<FlashOutline>();
    outline->items().push_back(std::make_shared<FlashOutlineItem>());
    EXPECT_EQ(bookData(outline)[u"outline"].toArray().size(), 1);
}

TEST_F(ReaderDataPDFTest, LeavesNoHalfFileWhenItIsStopped)
{
    PDFBuilder pdf;
    pdf.addPage();
    import(pdf, u"ALL"_s);
    ASSERT_FALSE(bookData().isEmpty());
    QFile::remove(source->pages().front()->pageFilePath());
    source->setStop(true);
    const LogCapture log;
    EXPECT_TRUE(bookData().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(inBook(u"files/search"_s)));
}
