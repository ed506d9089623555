// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"
#include "support/PDFBuilder.h"

#include <gtest/gtest.h>
#include <QDir>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

using RGB = DecodedJPEG::Pixel;

bool isNear(const RGB& a, const RGB& b)
{
    return std::abs(a[0] - b[0]) < 12 && std::abs(a[1] - b[1]) < 12 && std::abs(a[2] - b[2]) < 12;
}

constexpr RGB Red{ 255, 0, 0 };
constexpr RGB Green{ 0, 255, 0 };
constexpr RGB Blue{ 0, 0, 255 };
constexpr RGB Yellow{ 255, 255, 0 };
constexpr RGB White{ 255, 255, 255 };

// The four quarters of the box 100 200 300 300; around it black.
const QByteArray Quarters = "0 g 0 0 1000 1000 re f "
                            "1 0 0 rg 100 200 100 50 re f " // bottom left
                            "0 1 0 rg 200 200 100 50 re f "
                            "0 0 1 rg 100 250 100 50 re f "
                            "1 1 0 rg 200 250 100 50 re f"; // top right

DecodedJPEG draw(const PDFBuilder& pdf, double scale = 1)
{
    ServiceSession session;
    session.open(pdf.build());
    const QJsonObject answer = session.render(0, scale);
    EXPECT_EQ(answer.value(u"error").toString(), QString());
    DecodedJPEG picture = session.picture();
    EXPECT_EQ(answer.value(u"width").toInt(), picture.width);
    EXPECT_EQ(answer.value(u"height").toInt(), picture.height);
    EXPECT_EQ(answer.value(u"grey").toBool(), picture.components == 1);
    return picture;
}

bool isGrey(const PDFBuilder::Page& page)
{
    PDFBuilder pdf;
    pdf.addPage(page);
    return draw(pdf).components == 1;
}

int addImage(PDFBuilder& pdf, const QByteArray& space, const QByteArray& pixels)
{
    return pdf.addStream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width 2 /Height 1"
                         " /ColorSpace "
            + space,
        pixels);
}

PDFBuilder::Page pageWithImage(int image)
{
    return { .mediaBox = { 0, 0, 100, 100 },
        .content = "q 100 0 0 50 0 0 cm /Im Do Q 0 g 10 60 20 20 re f",
        .resources = "/XObject << /Im " + PDFBuilder::reference(image) + " >>" };
}

} // namespace

TEST(Render, HasTheSizeOfThePageInWholePixels)
{
    const struct {
        PDFBuilder::Box box;
        double unit, scale;
        int width, height;
    } cases[] = {
        { { 0, 0, 612, 792 }, 1, 2, 1224, 1584 },
        { { 0, 0, 595.276, 841.89 }, 1, 2, 1191, 1684 },
        { { 0, 0, 100.0004, 99.5 }, 1, 1, 100, 100 },
        { { 0, 0, 100, 50 }, 2.5, 1, 250, 125 },
        { { 0, 0, 100, 0.2 }, 1, 1, 100, 1 },
    };
    for (const auto& size : cases) {
        PDFBuilder pdf;
        pdf.addPage({ .mediaBox = size.box, .userUnit = size.unit });
        const DecodedJPEG picture = draw(pdf, size.scale);
        EXPECT_EQ(picture.width, size.width);
        EXPECT_EQ(picture.height, size.height);
    }
}

TEST(Render, ShowsTheCropBoxTurnedAsThePageIs)
{
    const struct {
        int rotation;
        RGB topLeft, topRight, bottomLeft, bottomRight;
    } cases[] = {
        { 0, Blue, Yellow, Red, Green },
        { 90, Red, Blue, Green, Yellow },
        { 180, Green, Red, Yellow, Blue },
        { 270, Yellow, Green, Blue, Red },
        { -90, Yellow, Green, Blue, Red },
        { 450, Red, Blue, Green, Yellow },
        { 45, Blue, Yellow, Red, Green },
    };
    for (const auto& turned : cases) {
        PDFBuilder pdf;
        pdf.addPage({ .mediaBox = { -50, -50, 600, 800 },
            .cropBox = PDFBuilder::Box{ 100, 200, 300, 300 },
            .rotation = turned.rotation,
            .userUnit = 1.5,
            .content = Quarters });
        const DecodedJPEG picture = draw(pdf);
        const bool sideways = turned.rotation % 180 != 0 && turned.rotation % 90 == 0;
        EXPECT_EQ(picture.width, sideways ? 150 : 300) << turned.rotation;
        EXPECT_EQ(picture.height, sideways ? 300 : 150) << turned.rotation;
        EXPECT_TRUE(isNear(picture.atFraction(0.05, 0.05), turned.topLeft)) << turned.rotation;
        EXPECT_TRUE(isNear(picture.atFraction(0.95, 0.05), turned.topRight)) << turned.rotation;
        EXPECT_TRUE(isNear(picture.atFraction(0.05, 0.95), turned.bottomLeft)) << turned.rotation;
        EXPECT_TRUE(isNear(picture.atFraction(0.95, 0.95), turned.bottomRight)) << turned.rotation;
    }
}

TEST(Render, LeavesNoWhiteEdgeWhereAPixelIsPartlyCovered)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 100.2, 50.3 }, .content = "1 0 0 rg -9 -9 200 200 re f" });
    const DecodedJPEG picture = draw(pdf);
    EXPECT_EQ(picture.width, 101);
    EXPECT_TRUE(isNear(picture.at(100, 25), Red));
    EXPECT_TRUE(isNear(picture.at(50, 50), Red));
    EXPECT_TRUE(isNear(picture.at(0, 0), Red));
}

TEST(Render, IsGreyWhenThereIsNoColourOnThePage)
{
    EXPECT_TRUE(isGrey({}));
    EXPECT_TRUE(isGrey({ .content = PDFBuilder::showText("black", 72, 700) }));
    EXPECT_TRUE(isGrey({ .content = "0.5 0.5 0.5 rg 9 9 200 200 re f" }));
    EXPECT_TRUE(isGrey({ .content = "0 0 0 1 k 9 9 200 200 re f" })); // black ink alone
    EXPECT_FALSE(isGrey({ .content = "1 0 0 rg " + PDFBuilder::showText("red", 72, 700) }));
    EXPECT_FALSE(isGrey({ .content = "0 0.1 0 0 K 9 9 200 200 re S" }));
}

TEST(Render, LooksForColourInsidePictures)
{
    PDFBuilder grey;
    grey.addPage(pageWithImage(addImage(grey, "/DeviceRGB", "\x40\x40\x40\xc0\xc0\xc0")));
    const DecodedJPEG picture = draw(grey);
    EXPECT_EQ(picture.components, 1);
    EXPECT_TRUE(isNear(picture.at(25, 75), { 0x40, 0x40, 0x40 }));
    EXPECT_TRUE(isNear(picture.at(75, 75), { 0xC0, 0xC0, 0xC0 }));
    PDFBuilder coloured;
    coloured.addPage(pageWithImage(addImage(coloured, "/DeviceRGB", "\x40\x40\x40\xc0\x10\x10")));
    EXPECT_EQ(draw(coloured).components, 3);
}

TEST(Render, DrawsTheSameGreyWithAndWithoutColourElsewhere)
{
    const QByteArray patches = "0 0 0 0.5 k 0 0 50 100 re f 0.3 g 50 0 50 100 re f ";
    PDFBuilder grey;
    grey.addPage({ .mediaBox = { 0, 0, 200, 100 }, .content = patches });
    PDFBuilder coloured;
    coloured.addPage(
        { .mediaBox = { 0, 0, 200, 100 }, .content = patches + "1 0 0 rg 150 0 50 100 re f" });
    const DecodedJPEG one = draw(grey);
    const DecodedJPEG other = draw(coloured);
    EXPECT_EQ(one.components, 1);
    for (const int x : { 25, 75, 125 })
        EXPECT_NEAR(one.at(x, 50)[1], other.at(x, 50)[1], 2);
}

TEST(Render, DrawsAnnotationsButNoLinkBorders)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 200, 100 } });
    const int look = pdf.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 10 10]", "0 1 0 rg 0 0 10 10 re f");
    pdf.addAnnotation(
        0, "/Subtype /Stamp /Rect [10 10 50 90] /AP << /N " + PDFBuilder::reference(look) + " >>");
    pdf.addAnnotation(0,
        "/Subtype /Stamp /F 2 /Rect [60 10 90 90] /AP << /N " + PDFBuilder::reference(look)
            + " >>"); // hidden
    pdf.addAnnotation(0, "/Subtype /Link /Border [0 0 40] /C [1 0 0] /Rect [120 40 180 60]");
    const DecodedJPEG picture = draw(pdf);
    EXPECT_TRUE(isNear(picture.at(30, 50), Green));
    EXPECT_TRUE(isNear(picture.at(75, 50), White));
    EXPECT_TRUE(isNear(picture.at(120, 50), White));
}

TEST(Render, ShrinksAPageWhoseBitmapWouldBeTooLarge)
{
    PDFBuilder pdf;
    pdf.addPage(
        { .mediaBox = { 0, 0, 20'000, 10'000 }, .content = "1 0 0 rg 0 0 20000 5000 re f" });
    ServiceSession session;
    session.open(pdf.build());
    const QJsonObject answer = session.render(0, 2, { { u"maxBytes"_s, 3'000'000 } });
    const DecodedJPEG picture = session.picture();
    EXPECT_LE(3 * picture.width * picture.height, 3'000'000);
    EXPECT_GT(3 * picture.width * picture.height, 2'900'000);
    EXPECT_NEAR(answer.value(u"scale").toDouble(), picture.width / 20'000.0, 0.001);
    EXPECT_TRUE(isNear(picture.atFraction(0.99, 0.99), Red));
    EXPECT_TRUE(isNear(picture.atFraction(0.99, 0.45), White));
}

TEST(Render, KeepsWithinTheLongestSideOfAJPEG)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 10, 100'000 } });
    EXPECT_LE(draw(pdf, 2).height, 65'500);
}

TEST(Render, LeavesOutAPictureThatIsDamagedAndSaysSo)
{
    PDFBuilder pdf;
    const int image = pdf.addStream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width 2"
                                    " /Height 1 /ColorSpace /DeviceRGB /Filter /JPXDecode",
        "no picture at all");
    pdf.addPage(pageWithImage(image));
    ServiceSession session;
    session.open(pdf.build());
    const QJsonObject answer = session.render(0, 1);
    EXPECT_TRUE(answer.value(u"incomplete").toBool())
        << answer.value(u"message").toString().toStdString();
    EXPECT_TRUE(isNear(session.picture().at(20, 30), { 0, 0, 0 })); // what comes after it
}

TEST(Render, FailsWhenThePictureCantBeWrittenAndLeavesNothingBehind)
{
    PDFBuilder pdf;
    pdf.addPage();
    ServiceSession session;
    session.open(pdf.build());
    const QString target = session.path(u"taken"_s);
    ASSERT_TRUE(QDir().mkpath(target + u"/inside"_s));
    for (const QString& path : { session.path(u"none/page.jpg"_s), target }) {
        const QJsonObject answer = session.render(0, 1, { { u"path"_s, path } });
        EXPECT_EQ(answer.value(u"error").toString(), u"write"_s);
    }
    EXPECT_EQ(QDir(session.path({})).entryList(QDir::Files | QDir::Hidden),
        QStringList({ u"document.pdf"_s }));
}

TEST(Render, ReplacesAnEarlierPicture)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 10, 10 } });
    ServiceSession session;
    session.open(pdf.build());
    session.write(u"page.jpg"_s, QByteArray(1'000'000, 'x'));
    const qint64 bytes = session.render(0, 1).value(u"bytes").toInteger();
    EXPECT_EQ(QFileInfo(session.path(u"page.jpg"_s)).size(), bytes);
}
