// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

bool isGrey(const QImage& picture)
{
    return picture.format() == QImage::Format_Grayscale8;
}

QImage draw(const PDFBuilder& pdf, double scale = 1, int maxBytes = 512 << 20)
{
    ServiceSession session(pdf);
    const QJsonObject answer = session.render(0, scale, { { u"maxBytes"_s, maxBytes } });
    EXPECT_EQ(errorOf(answer), QString());
    QImage picture = session.picture();
    EXPECT_EQ(answer.value(u"width").toInt(), picture.width());
    EXPECT_EQ(answer.value(u"grey").toBool(), isGrey(picture));
    return picture;
}

QImage draw(const PDFBuilder::Page& page)
{
    PDFBuilder pdf;
    pdf.addPage(page);
    return draw(pdf);
}

PDFBuilder pdfWithImage(const QByteArray& entries, const QByteArray& data)
{
    PDFBuilder pdf;
    const int image = pdf.addStream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width 2"
                                    " /Height 1 /ColorSpace /DeviceRGB "
            + entries,
        data);
    pdf.addPage({ .mediaBox = { 0, 0, 100, 100 },
        .content = "q 100 0 0 50 0 0 cm /Im Do Q 0 g 10 60 20 20 re f",
        .resources = "/XObject << /Im " + PDFBuilder::reference(image) + " >>" });
    return pdf;
}

} // namespace

TEST(Render, HasTheSizeOfThePageInWholePixelsWithinTheLimits)
{
    const struct {
        PDFBuilder::Box box;
        double unit, scale;
        int maxBytes;
        QSize expected;
    } cases[] = {
        { { 0, 0, 595.276, 841.89 }, 1, 2, 512 << 20, { 1191, 1684 } },
        { { 0, 0, 100.0004, 99.5 }, 1, 1, 512 << 20, { 100, 100 } },
        { { 0, 0, 100, 50 }, 2.5, 1, 512 << 20, { 250, 125 } },
        { { 0, 0, 100, 0.2 }, 1, 1, 512 << 20, { 100, 1 } },
        { { 0, 0, 20'000, 10'000 }, 1, 2, 3'000'000, { 1413, 707 } },
        { { 0, 0, 10, 100'000 }, 1, 2, 512 << 20, { 7, 65'500 } }, // the longest side of a JPEG
    };
    for (const auto& size : cases) {
        PDFBuilder pdf;
        pdf.addPage({ .mediaBox = size.box, .userUnit = size.unit });
        EXPECT_EQ(draw(pdf, size.scale, size.maxBytes).size(), size.expected);
    }
}

TEST(Render, LeavesNoWhiteEdgeWhereAPixelIsPartlyCovered)
{
    const QImage picture
        = draw({ .mediaBox = { 0, 0, 100.2, 50.3 }, .content = "1 0 0 rg -9 -9 200 200 re f" });
    EXPECT_EQ(picture.width(), 101);
    expectColour(picture, { 100, 25 }, Qt::red);
    expectColour(picture, { 50, 50 }, Qt::red);
}

TEST(Render, IsGreyWhenThereIsNoColourOnThePageOrInItsPictures)
{
    for (const QByteArray content :
        { "", "0.5 0.5 0.5 rg 9 9 200 200 re f", "0 0 0 1 k 9 9 200 200 re f" }) // black ink alone
        EXPECT_TRUE(isGrey(draw({ .content = content }))) << content.constData();
    EXPECT_FALSE(isGrey(draw({ .content = "1 0 0 rg " + PDFBuilder::showText("red", 72, 700) })));
    EXPECT_FALSE(isGrey(draw({ .content = "0 0.1 0 0 K 9 9 200 200 re S" })));
    EXPECT_FALSE(isGrey(draw(pdfWithImage({}, "\x40\x40\x40\xc0\x10\x10"))));
    const QImage picture = draw(pdfWithImage({}, "\x40\x40\x40\xc0\xc0\xc0"));
    EXPECT_TRUE(isGrey(picture));
    expectColour(picture, { 25, 75 }, { 0x40, 0x40, 0x40 });
    expectColour(picture, { 75, 75 }, { 0xC0, 0xC0, 0xC0 });
}

TEST(Render, DrawsTheSameGreyWithAndWithoutColourElsewhere)
{
    const QByteArray patches = "0 0 0 0.5 k 0 0 50 100 re f 0.3 g 50 0 50 100 re f ";
    const QImage grey = draw({ .content = patches });
    const QImage coloured = draw({ .content = patches + "1 0 0 rg 150 0 50 100 re f" });
    EXPECT_TRUE(isGrey(grey));
    for (const int x : { 25, 75, 125 })
        EXPECT_NEAR(qGreen(grey.pixel(x, 742)), qGreen(coloured.pixel(x, 742)), 2);
}

TEST(Render, DrawsAnnotationsButNoLinkBorders)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 200, 100 } });
    const int look = pdf.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 10 10]", "0 1 0 rg 0 0 10 10 re f");
    const QByteArray appearance = " /AP << /N " + PDFBuilder::reference(look) + " >>";
    pdf.addAnnotation(0, "/Subtype /Stamp /Rect [10 10 50 90]" + appearance);
    pdf.addAnnotation(0, "/Subtype /Stamp /F 2 /Rect [60 10 90 90]" + appearance); // hidden
    pdf.addAnnotation(0, "/Subtype /Link /Border [0 0 40] /C [1 0 0] /Rect [120 40 180 60]");
    const QImage picture = draw(pdf);
    expectColour(picture, { 30, 50 }, Qt::green);
    expectColour(picture, { 75, 50 }, Qt::white);
    expectColour(picture, { 120, 50 }, Qt::white);
}

TEST(Render, LeavesOutAPictureThatIsDamagedAndSaysSo)
{
    ServiceSession session(pdfWithImage("/Filter /JPXDecode", "no picture at all"));
    const QJsonObject answer = session.render();
    EXPECT_TRUE(answer.value(u"incomplete").toBool());
    expectColour(session.picture(), { 20, 30 }, Qt::black); // what comes after it
}

TEST(Render, FailsWhenThePictureCantBeWrittenAndLeavesNothingBehind)
{
    ServiceSession session(PDFBuilder(1));
    const QString target = session.path(u"taken"_s);
    ASSERT_TRUE(QDir().mkpath(target + u"/inside"_s));
    for (const QString& path : { session.path(u"none/page.jpg"_s), target })
        EXPECT_EQ(errorOf(session.render(0, 1, { { u"path"_s, path } })), u"write"_s);
    EXPECT_EQ(QDir(session.path({})).entryList(QDir::Files | QDir::Hidden),
        QStringList({ u"document.pdf"_s }));
}
