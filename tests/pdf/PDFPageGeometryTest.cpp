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

/// Every rotation of a page with a crop box off zero, on which one rectangle is black.
QByteArray rotatedPages(const std::vector<int>& rotations)
{
    PDFBuilder builder;
    for (const int rotation : rotations)
        builder.addPage({ .mediaBox = { -50, -50, 600, 700 },
            .cropBox = PDFBuilder::Box{ 100, 50, 300, 450 },
            .rotation = rotation,
            .userUnit = 2,
            .content = "130 380 80 30 re f " + PDFBuilder::showText("word", 250, 100) });
    return builder.build();
}

void expectSame(const PageFraction& box, const PageFraction& other, double tolerance)
{
    for (const auto side :
        { &PageFraction::x, &PageFraction::y, &PageFraction::width, &PageFraction::height })
        EXPECT_NEAR(box.*side, other.*side, tolerance);
}

/// That the dark pixels of a place and its surroundings fill the place.
void expectDark(const QImage& picture, const PageFraction& place)
{
    const double width = picture.width();
    const double height = picture.height();
    const QRectF area(
        place.x * width, place.y * height, place.width * width, place.height * height);
    const QRect around = area.toRect().adjusted(-9, -9, 9, 9);
    QRect dark;
    for (int y = around.top(); y <= around.bottom(); ++y)
        for (int x = around.left(); x <= around.right(); ++x)
            if (qGray(picture.pixel(x, y)) < 128)
                dark |= QRect(x, y, 1, 1);
    expectSame(
        { dark.x() / width, dark.y() / height, dark.width() / width, dark.height() / height },
        place, 0.005);
}

} // namespace

// The page's values, its picture and its text come by different ways; they have to agree.
TEST(PDFPageGeometry, ARectangleLiesWhereThePictureAndTheTextShowIt)
{
    const QTemporaryDir folder;
    const std::vector<int> rotations{ 0, 90, 180, 270, -90, 450, 45 };
    const PDFDocument::Source source{ .path
        = writeTestFile(folder.filePath(u"a.pdf"_s), rotatedPages(rotations)) };
    const auto document = PDFDocument::open(source).document;
    ASSERT_TRUE(document);
    PDFImageRep pictures(
        source, { .scale = 1, .jpeg = jpegSettings(1), .workFolder = folder.path() });
    pictures.plan({ 0, 1, 2, 3, 4, 5, 6 });
    PDFTextReader texts(source, { 0, 1, 2, 3, 4, 5, 6 });

    for (int i = 0; i < 7; ++i) {
        SCOPED_TRACE(rotations.at(static_cast<size_t>(i)));
        const QString path = folder.filePath(u"%1.jpg"_s.arg(i));
        const RenderedPage drawn = pictures.drawPage(i, path);
        const PDFPage page = document->pageAtIndex(i).value();
        EXPECT_EQ(drawn.width, page.displayedWidth());
        EXPECT_EQ(drawn.height, page.displayedHeight());
        EXPECT_EQ(drawn.bytes, QFileInfo(path).size());

        expectDark(QImage(path), page.displayed({ 130, 380, 80, 30 }));
        const std::vector<PDFTextLine> lines = texts.next();
        ASSERT_EQ(lines.size(), 1U);
        expectSame(lines.front().boxes.front(), page.displayed({ 250, 97, 28, 14 }), 0.03);
    }
}

TEST(PDFPageGeometry, ARectangleIsClippedToTheCropBoxAndAnEmptyOneYieldsNoInfinities)
{
    const auto displayed = [](int rotation, const PDFRect& rect) {
        return PDFPage(0, { {}, { 100, 50, 200, 400 } }, rotation, 1, {}).displayed(rect);
    };
    expectSame(displayed(-720, { 0, 0, 1000, 1000 }), { 0, 0, 1, 1 }, 1e-9);
    expectSame(displayed(90, { 0, 0, 200, 1000 }), { 0, 0, 1, 0.5 }, 1e-9);
    expectSame(displayed(0, { 0, 0, 50, 20 }), { 0, 1, 0, 0 }, 1e-9);
    expectSame(displayed(45, { 120, 370, 60, 40 }), { 0.1, 0.1, 0.3, 0.1 }, 1e-9);
    expectSame(PDFPage(0, {}, 90, 1, {}).displayed({ 1, 2, 3, 4 }), {}, 0);
}
