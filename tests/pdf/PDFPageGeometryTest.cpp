// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"
#include "pdf/PDFTextReader.h"

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QImage>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

constexpr PDFRect markedRect{ 130, 380, 80, 30 };

/// Every rotation of a page with a crop box off zero, on which one rectangle is black.
QByteArray rotatedPages(const std::vector<int>& rotations)
{
    PDFBuilder builder;
    for (const int rotation : rotations)
        builder.addPage({ .mediaBox = { 20, 10, 600, 700 },
            .cropBox = PDFBuilder::Box{ 100, 50, 300, 450 },
            .rotation = rotation,
            .userUnit = 2,
            .content = "130 380 80 30 re f " + PDFBuilder::showText("word", 250, 100) });
    return builder.build();
}

/// The box around the dark pixels of a place and its surroundings, as fractions of the picture.
PageFraction darkBox(const QImage& picture, const PageFraction& around)
{
    const QRectF area(around.x * picture.width() - 9, around.y * picture.height() - 9,
        around.width * picture.width() + 18, around.height * picture.height() + 18);
    QRect dark;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (area.contains(x, y) && qGray(picture.pixel(x, y)) < 128)
                dark |= QRect(x, y, 1, 1);
    return { dark.x() * 1.0 / picture.width(), dark.y() * 1.0 / picture.height(),
        dark.width() * 1.0 / picture.width(), dark.height() * 1.0 / picture.height() };
}

void expectSame(const PageFraction& box, const PageFraction& other, double tolerance)
{
    EXPECT_NEAR(box.x, other.x, tolerance);
    EXPECT_NEAR(box.y, other.y, tolerance);
    EXPECT_NEAR(box.width, other.width, tolerance);
    EXPECT_NEAR(box.height, other.height, tolerance);
}

} // namespace

// The page's values, its picture and its text come by different ways; they have to agree.
TEST(PDFPageGeometry, ARectangleLiesWhereThePictureAndTheTextShowIt)
{
    const QTemporaryDir folder;
    const std::vector<int> rotations{ 0, 90, 180, 270, -90, 450 };
    const PDFDocument::Source source{ .path
        = writeTestFile(folder.filePath(u"a.pdf"_s), rotatedPages(rotations)) };
    const auto document = PDFDocument::open(source).document;
    ASSERT_TRUE(document);
    PDFImageRep pictures(
        source, { .scale = 1, .jpeg = jpegSettings(1), .workFolder = folder.path() });
    pictures.plan({ 0, 1, 2, 3, 4, 5 });
    PDFTextReader texts(source, { 0, 1, 2, 3, 4, 5 });

    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(rotations.at(static_cast<size_t>(i)));
        const QString path = folder.filePath(u"%1.jpg"_s.arg(i));
        const RenderedPage drawn = pictures.drawPage(i, path);
        const PDFPage page = document->pageAtIndex(i).value();
        EXPECT_EQ(drawn.width, page.displayedWidth());
        EXPECT_EQ(drawn.height, page.displayedHeight());
        EXPECT_EQ(drawn.bytes, QFileInfo(path).size());

        const PageFraction expected = page.displayed(markedRect);
        expectSame(darkBox(QImage(path), expected), expected, 0.005);

        const std::vector<PDFTextLine> lines = texts.next();
        ASSERT_EQ(lines.size(), 1U);
        const PageFraction word = page.displayed({ 250, 97, 28, 14 });
        expectSame(lines.front().boxes.front(), word, 0.03);
    }
}

TEST(PDFPageGeometry, APageTooLargeIsDrawnSmaller)
{
    const QTemporaryDir folder;
    PDFBuilder builder;
    builder.addPage({ .mediaBox = { 0, 0, 20000, 20000 } });
    PDFImageRep pictures({ .path = writeTestFile(folder.filePath(u"a.pdf"_s), builder.build()) },
        { .workFolder = folder.path() });

    const RenderedPage page = pictures.drawPage(0, folder.filePath(u"1.jpg"_s));
    EXPECT_TRUE(page.written) << page.problem.toStdString();
    EXPECT_TRUE(page.reduced);
    EXPECT_LT(page.width, 40000);
    EXPECT_FALSE(pictures.drawPage(1, folder.filePath(u"2.jpg"_s)).written);
}
