// SPDX-License-Identifier: MIT
#include "links/FlashPagesAnnotationsPDF.h"

#include "support/LogCapture.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class FlashPagesAnnotationsPDFTest : public testing::Test {
protected:
    static PDFBuilder tenPages()
    {
        PDFBuilder builder;
        for (int i = 0; i < 10; ++i)
            builder.addPage({ .mediaBox = { 0, 0, 600, 800 } });
        return builder;
    }

    std::shared_ptr<PDFDocument> open(const PDFBuilder& builder)
    {
        const QString path = writeTestFile(iFolder.filePath(u"links.pdf"_s), builder.build());
        return PDFDocument::open({ .path = path, .password = {}, .limits = {} }).document;
    }

    QByteArray treeOf(const PDFBuilder& builder, const QString& range)
    {
        iAnnotations.loadLinksFromPDF(open(builder), range);
        return iAnnotations.pagesAnnotationsNode()->toUtf8();
    }

    static constexpr PDFBuilder::Box iBox{ 60, 700, 180, 740 };
    QTemporaryDir iFolder;
    FlashPagesAnnotationsPDF iAnnotations;
};

} // namespace

TEST_F(FlashPagesAnnotationsPDFTest, WritesEveryLinkOfTheRangeByteForByte)
{
    PDFBuilder builder = tenPages();
    builder.addURLLink(2, iBox, "https://example.org/?a=1&b=2");
    builder.addPageLink(2, iBox, 9);
    builder.addPageLink(2, iBox, 0);
    EXPECT_EQ(treeOf(builder, u"3-4"_s),
        "<pagesAnnos><pageAnnos pageIndex=\"1\">"
        "<anno annotype=\"com.vexmoor.flipbook.pageeditor.TAnnoLink\">"
        "<action triggerEventType=\"mouseDown\""
        " actionType=\"com.vexmoor.flipbook.pageeditor.TAnnoActionOpenURL\">"
        "<url>https://example.org/?a=1&amp;b=2</url></action>"
        "<location x=\"0.100000\" y=\"0.075000\" width=\"0.200000\" height=\"0.050000\"/></anno>"
        "<anno annotype=\"com.vexmoor.flipbook.pageeditor.TAnnoLink\">"
        "<action triggerEventType=\"mouseDown\""
        " actionType=\"com.vexmoor.flipbook.pageeditor.TAnnoActionGotoPage\">"
        "<pageIndex>10</pageIndex></action>"
        "<location x=\"0.100000\" y=\"0.075000\" width=\"0.200000\" height=\"0.050000\"/></anno>"
        "<anno annotype=\"com.vexmoor.flipbook.pageeditor.TAnnoLink\">"
        "<action triggerEventType=\"mouseDown\""
        " actionType=\"com.vexmoor.flipbook.pageeditor.TAnnoActionGotoPage\">"
        "<pageIndex>1</pageIndex></action>"
        "<location x=\"0.100000\" y=\"0.075000\" width=\"0.200000\" height=\"0.050000\"/></anno>"
        "</pageAnnos><pageAnnos pageIndex=\"2\"/></pagesAnnos>");
}

TEST_F(FlashPagesAnnotationsPDFTest, LeavesOutWhatIsNoLinkOrLeadsNowhere)
{
    PDFBuilder builder = tenPages();
    builder.addAnnotation(0, "/Subtype /Text /Rect [0 0 9 9]");
    builder.addAnnotation(0, "/Subtype /Link /Rect [0 0 9 9]");
    EXPECT_EQ(treeOf(builder, u"1"_s), "<pagesAnnos><pageAnnos pageIndex=\"1\"/></pagesAnnos>");
}

TEST_F(FlashPagesAnnotationsPDFTest, ALinkToAPageThatIsNotThereHasPageZero)
{
    PDFBuilder builder = tenPages();
    builder.addNamedLink(0, iBox, "nowhere");
    EXPECT_THAT(treeOf(builder, u"1"_s).toStdString(), HasSubstr("<pageIndex>0</pageIndex>"));
}

TEST_F(FlashPagesAnnotationsPDFTest, PagesThatTheDocumentDoesNotHaveAreEmpty)
{
    const QByteArray twoEmpty
        = "<pagesAnnos><pageAnnos pageIndex=\"1\"/><pageAnnos pageIndex=\"2\"/></pagesAnnos>";
    EXPECT_EQ(treeOf(tenPages(), u"0,11"_s), twoEmpty);
    iAnnotations.loadLinksFromPDF(nullptr, u"1-2"_s);
    EXPECT_EQ(iAnnotations.pagesAnnotationsNode()->toUtf8(), twoEmpty);
}

TEST_F(FlashPagesAnnotationsPDFTest, LoadingAgainReplacesTheTreeAndEmptiesTheFileList)
{
    (void)treeOf(tenPages(), u"1-5"_s);
    iAnnotations.needFiles().append(u"/tmp/film.mp4"_s);
    EXPECT_EQ(treeOf(tenPages(), u"7"_s), "<pagesAnnos><pageAnnos pageIndex=\"1\"/></pagesAnnos>");
    EXPECT_TRUE(iAnnotations.needFiles().isEmpty());
}

TEST_F(FlashPagesAnnotationsPDFTest, TheTreeCanBeChangedAndReplacedAfterALoad)
{
    (void)treeOf(tenPages(), u"1"_s);
    iAnnotations.pagesAnnotationsNode()->addAttribute(u"edited"_s, u"1"_s);
    EXPECT_EQ(iAnnotations.pagesAnnotationsNode()->attribute(u"edited"_s), u"1"_s);

    iAnnotations.setPagesAnnotationsNode(std::nullopt);
    EXPECT_FALSE(iAnnotations.pagesAnnotationsNode());

    iAnnotations.loadLinksFromPDF(nullptr, u"1"_s);
    iAnnotations.setPagesAnnotationsNode(XMLElement(u"other"_s));
    EXPECT_EQ(iAnnotations.pagesAnnotationsNode()->toUtf8(), "<other/>");
}

TEST_F(FlashPagesAnnotationsPDFTest, LogsPagesCountsAndAnnotations)
{
    PDFBuilder builder = tenPages();
    builder.addURLLink(1, iBox, "https://example.org/");
    const auto document = open(builder);
    const LogCapture log(LogLevel::Debug);
    iAnnotations.loadLinksFromPDF(document, u"1-2"_s);
    EXPECT_THAT(log.lines().filter(u"FlashPagesAnnotationsPDF"_s),
        ElementsAre(u"DEBUG FlashPagesAnnotationsPDF: page is:1"_s,
            u"DEBUG FlashPagesAnnotationsPDF: page is:2"_s,
            u"DEBUG FlashPagesAnnotationsPDF: count is:1"_s,
            u"DEBUG FlashPagesAnnotationsPDF: 0:Link,{{60, 700}, {120, 40}},d:(null),"
            "url:https://example.org/"_s));
}
