// SPDX-License-Identifier: MIT
#include "links/FlashPagesAnnotationsPDF.h"

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

constexpr PDFBuilder::Box place{ 60, 700, 180, 740 };

QByteArray linkOf(const QByteArray& action, const QByteArray& target)
{
    return "<anno annotype=\"com.vexmoor.flipbook.pageeditor.TAnnoLink\">"
           "<action triggerEventType=\"mouseDown\""
           " actionType=\"com.vexmoor.flipbook.pageeditor."
        + action + "\">" + target
        + "</action><location x=\"0.100000\" y=\"0.075000\" width=\"0.200000\""
          " height=\"0.050000\"/></anno>";
}

} // namespace

TEST(FlashPagesAnnotationsPDF, WritesEveryLinkOfTheRangeThatLeadsSomewhereByteForByte)
{
    PDFBuilder builder;
    for (int i = 0; i < 10; ++i)
        builder.addPage({ .mediaBox = { 0, 0, 600, 800 } });
    builder.addURLLink(2, place, "https://example.org/?a=1&b=2");
    builder.addPageLink(2, place, 9);
    builder.addAnnotation(2, "/Subtype /Link /Rect [60 700 180 740] /Dest (nowhere)");
    builder.addAnnotation(2, "/Subtype /Text /Rect [0 0 9 9]");
    builder.addAnnotation(2, "/Subtype /Link /Rect [0 0 9 9]");
    const QTemporaryDir folder;
    const QString path = writeTestFile(folder.filePath(u"links.pdf"_s), builder.build());
    FlashPagesAnnotationsPDF annotations;
    annotations.loadLinksFromPDF(nullptr, u"1-9"_s);
    annotations.needFiles().append(u"/tmp/film.mp4"_s);
    const PDFDocument::Source source{ .path = path, .password = {}, .limits = {} };
    annotations.loadLinksFromPDF(PDFDocument::open(source).document, u"3,11"_s);
    EXPECT_EQ(annotations.pagesAnnotationsNode()->toUtf8(),
        "<pagesAnnos><pageAnnos pageIndex=\"1\">"
            + linkOf("TAnnoActionOpenURL", "<url>https://example.org/?a=1&amp;b=2</url>")
            + linkOf("TAnnoActionGotoPage", "<pageIndex>10</pageIndex>")
            + linkOf("TAnnoActionGotoPage", "<pageIndex>0</pageIndex>")
            + "</pageAnnos><pageAnnos pageIndex=\"2\"/></pagesAnnos>");
    EXPECT_TRUE(annotations.needFiles().isEmpty());
}
