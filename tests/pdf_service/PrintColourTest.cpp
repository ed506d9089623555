// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PrintColour.h"
#include "pdf_service/InkCorners.h"
#include "pdf_service/ServiceSession.h"
#include "support/PDFBuilder.h"

#include <cstdio> // jpeglib.h needs it before
#include <gtest/gtest.h>
#include <jpeglib.h>
#include <QFile>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

using RGB = DecodedJPEG::Pixel;

// The colours on screen are what Ghostscript 10.0 shows for a page of fills:
//   gs -q -dNOPAUSE -dBATCH -sDEVICE=ppmraw -r72 -o fills.ppm fills.pdf
// once with its default CMYK profile, once with its ps_cmyk.icc as output intent
// (-dUsePDFX3Profile) or as ICCBased space, which gave the same.
struct Ink {
    std::array<double, 4> cmyk;
    RGB coated;
    RGB postScript;
};

const Ink Inks[] = {
    { { 1, 0, 0, 0 }, { 0, 174, 239 }, { 0, 255, 255 } },
    { { 0, 1, 0, 0 }, { 236, 0, 140 }, { 255, 0, 255 } },
    { { 0, 0, 1, 0 }, { 255, 242, 0 }, { 255, 255, 0 } },
    { { 0, 0, 0, 1 }, { 35, 31, 32 }, { 0, 0, 0 } },
    { { 1, 1, 0, 0 }, { 46, 48, 146 }, { 0, 0, 255 } },
    { { 0, 1, 1, 0 }, { 237, 28, 36 }, { 255, 0, 0 } },
    { { 1, 0, 1, 0 }, { 0, 166, 80 }, { 0, 255, 0 } },
    { { 0.5, 0, 0, 0 }, { 109, 207, 246 }, { 148, 255, 255 } },
    { { 0, 0, 0, 0.5 }, { 147, 149, 152 }, { 187, 187, 187 } },
    { { 0.6, 0.4, 0.4, 1 }, { 0, 0, 0 }, { 0, 0, 0 } },
    { { 0.2, 0.7, 0.1, 0.1 }, { 182, 98, 144 }, { 243, 122, 234 } },
    { { 0.3, 0.2, 0.2, 0.05 }, { 171, 179, 182 }, { 205, 224, 224 } },
};
constexpr int Count = 12;
constexpr int Patch = 100; // points a side
constexpr PDFBuilder::Box Strip{ 0, 0, Count* Patch, Patch };

QByteArray numbers(const std::array<double, 4>& inks)
{
    QByteArray text;
    for (const double ink : inks)
        text += QByteArray::number(ink) + ' ';
    return text;
}

// Content that paints each patch with the operator given after its inks.
QByteArray fills(const QByteArray& colourOperator)
{
    QByteArray content;
    for (int i = 0; i < Count; ++i)
        content += numbers(Inks[i].cmyk) + colourOperator + ' ' + QByteArray::number(i * Patch)
            + " 0 100 100 re f\n";
    return content;
}

// Rows of flat patches, one byte an ink.
QByteArray inkRows(int pixelsPerPatch, int rows)
{
    QByteArray row;
    for (const Ink& ink : Inks) {
        QByteArray pixel;
        for (const double amount : ink.cmyk)
            pixel += static_cast<char>(std::lround(amount * 255));
        row += pixel.repeated(pixelsPerPatch);
    }
    return row.repeated(rows);
}

int addImage(PDFBuilder& pdf, int pixelsPerPatch, int rows, const QByteArray& entries,
    const QByteArray& data)
{
    return pdf.addStream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width "
            + QByteArray::number(Count * pixelsPerPatch) + " /Height " + QByteArray::number(rows)
            + ' ' + entries,
        data);
}

QByteArray pageWithImage(PDFBuilder& pdf, int image)
{
    pdf.addPage({ .mediaBox = Strip,
        .content = "1200 0 0 100 0 0 cm /Im Do",
        .resources = "/XObject << /Im " + PDFBuilder::reference(image) + " >>" });
    return pdf.build();
}

QByteArray profile(const QString& name)
{
    QFile file(u"/usr/share/color/icc/ghostscript/"_s + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "the package libgs-common is needed";
    return file.readAll();
}

int addProfile(PDFBuilder& pdf, const QByteArray& bytes)
{
    return pdf.addStream("/N 4", bytes);
}

void expectPatches(const QByteArray& pdf, RGB Ink::*expected)
{
    ServiceSession session;
    session.open(pdf);
    ASSERT_FALSE(session.render(0, 1).contains(u"error"));
    const DecodedJPEG picture = session.picture();
    for (int i = 0; i < Count; ++i) {
        const RGB pixel = picture.at(i * Patch + Patch / 2, Patch / 2);
        for (size_t k = 0; k < 3; ++k)
            EXPECT_NEAR(pixel[k], (Inks[i].*expected)[k], 2) << "ink " << i << " component " << k;
    }
}

// As Photoshop writes it: inverted values, put right by /Decode.
QByteArray invertedJPEG(QByteArray rows, int width, int height)
{
    for (char& byte : rows)
        byte = static_cast<char>(~byte);
    jpeg_compress_struct library{};
    jpeg_error_mgr errors{};
    library.err = jpeg_std_error(&errors);
    jpeg_create_compress(&library);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&library, &bytes, &size);
    library.image_width = static_cast<JDIMENSION>(width);
    library.image_height = static_cast<JDIMENSION>(height);
    library.input_components = 4;
    library.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&library);
    jpeg_set_quality(&library, 100, TRUE);
    jpeg_start_compress(&library, TRUE);
    while (library.next_scanline < library.image_height) {
        auto* row = reinterpret_cast<JSAMPROW>(rows.data())
            + library.next_scanline * 4 * library.image_width;
        jpeg_write_scanlines(&library, &row, 1);
    }
    jpeg_finish_compress(&library);
    QByteArray result(reinterpret_cast<char*>(bytes), static_cast<qsizetype>(size));
    jpeg_destroy_compress(&library);
    free(bytes);
    return result;
}

} // namespace

TEST(PrintColour, OfFills)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = Strip, .content = fills("k") });
    expectPatches(pdf.build(), &Ink::coated);
}

TEST(PrintColour, OfASmallAndOfALargeImage)
{
    for (const int size : { 4, 100 }) {
        PDFBuilder pdf;
        const int image = addImage(pdf, size, size, "/ColorSpace /DeviceCMYK", inkRows(size, size));
        expectPatches(pageWithImage(pdf, image), &Ink::coated);
    }
}

TEST(PrintColour, OfAnInvertedJPEG)
{
    PDFBuilder pdf;
    const int image = addImage(pdf, 16, 16,
        "/ColorSpace /DeviceCMYK /Filter /DCTDecode /Decode [1 0 1 0 1 0 1 0]",
        invertedJPEG(inkRows(16, 16), Count * 16, 16));
    expectPatches(pageWithImage(pdf, image), &Ink::coated);
}

TEST(PrintColour, OfAnImageThroughASoftMask)
{
    PDFBuilder pdf;
    const int mask = pdf.addStream("/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width 1"
                                   " /Height 1 /ColorSpace /DeviceGray",
        "\xff");
    const int image = addImage(
        pdf, 4, 4, "/ColorSpace /DeviceCMYK /SMask " + PDFBuilder::reference(mask), inkRows(4, 4));
    expectPatches(pageWithImage(pdf, image), &Ink::coated);
}

TEST(PrintColour, OfShadings)
{
    PDFBuilder pdf;
    QByteArray shadings;
    QByteArray content;
    for (int i = 0; i < Count; ++i) {
        const QByteArray name = "/S" + QByteArray::number(i);
        const QByteArray colour = '[' + numbers(Inks[i].cmyk) + ']';
        shadings += name + " << /ShadingType 2 /ColorSpace /DeviceCMYK /Coords [0 0 1200 0]"
            + " /Function << /FunctionType 2 /N 1 /Domain [0 1] /C0 " + colour + " /C1 " + colour
            + " >> >> ";
        content += "q " + QByteArray::number(i * Patch) + " 0 100 100 re W n " + name + " sh Q\n";
    }
    pdf.addPage(
        { .mediaBox = Strip, .content = content, .resources = "/Shading << " + shadings + " >>" });
    expectPatches(pdf.build(), &Ink::coated);
}

TEST(PrintColour, OfSeparations)
{
    PDFBuilder pdf;
    QByteArray spaces;
    QByteArray content;
    for (int i = 0; i < Count; ++i) {
        const QByteArray name = "/Spot" + QByteArray::number(i);
        spaces += name + " [/Separation " + name + " /DeviceCMYK << /FunctionType 2 /N 1"
            + " /Domain [0 1] /C0 [0 0 0 0] /C1 [" + numbers(Inks[i].cmyk) + "] >>] ";
        content += name + " cs 1 scn " + QByteArray::number(i * Patch) + " 0 100 100 re f\n";
    }
    pdf.addPage(
        { .mediaBox = Strip, .content = content, .resources = "/ColorSpace << " + spaces + " >>" });
    expectPatches(pdf.build(), &Ink::coated);
}

TEST(PrintColour, OfATransparencyGroupInCMYK)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = Strip,
        .content = fills("k"),
        .entries = "/Group << /S /Transparency /CS /DeviceCMYK >>" });
    expectPatches(pdf.build(), &Ink::coated);
}

TEST(PrintColour, FollowsTheOutputIntentFirst)
{
    PDFBuilder pdf;
    const int icc = addProfile(pdf, profile(u"ps_cmyk.icc"_s));
    pdf.addCatalogueEntries("/OutputIntents [<< /S /GTS_PDFX /DestOutputProfile "
        + PDFBuilder::reference(icc) + " >>]");
    pdf.addPage({ .mediaBox = Strip, .content = fills("k") });
    expectPatches(pdf.build(), &Ink::postScript);
}

TEST(PrintColour, FallsBackWhenTheOutputIntentIsBroken)
{
    PDFBuilder pdf;
    const int icc = addProfile(pdf, "this is no profile");
    pdf.addCatalogueEntries(
        "/OutputIntents [null << /DestOutputProfile " + PDFBuilder::reference(icc) + " >>]");
    pdf.addPage({ .mediaBox = Strip, .content = fills("k") });
    expectPatches(pdf.build(), &Ink::coated);
}

TEST(PrintColour, FollowsEmbeddedProfilesOfFillsAndImages)
{
    PDFBuilder pdf;
    const QByteArray space
        = "[/ICCBased " + PDFBuilder::reference(addProfile(pdf, profile(u"ps_cmyk.icc"_s))) + ']';
    const int image = addImage(pdf, 4, 4, "/ColorSpace " + space, inkRows(4, 4));
    pdf.addPage({ .mediaBox = Strip,
        .content = "/Own cs " + fills("sc"),
        .resources = "/ColorSpace << /Own " + space + " >>" });
    expectPatches(pdf.build(), &Ink::postScript);
    PDFBuilder withImage = pdf;
    ServiceSession session;
    withImage.replaceObject(withImage.pageObject(0),
        "<< /Type /Page /Parent 2 0 R /MediaBox " + PDFBuilder::box(Strip)
            + " /Resources << /XObject << /Im " + PDFBuilder::reference(image) + " >> >> /Contents "
            + PDFBuilder::reference(withImage.addStream({}, "1200 0 0 100 0 0 cm /Im Do")) + " >>");
    expectPatches(withImage.build(), &Ink::postScript);
}

TEST(PrintColour, FollowsAnEmbeddedProfileBelowAPalette)
{
    PDFBuilder pdf;
    const QByteArray profileReference
        = PDFBuilder::reference(addProfile(pdf, profile(u"ps_cmyk.icc"_s)));
    const QByteArray palette = inkRows(1, 1).toHex();
    const int image = addImage(pdf, 1, 1,
        "/ColorSpace [/Indexed [/ICCBased " + profileReference + "] 11 <" + palette + ">]",
        QByteArray("\0\1\2\3\4\5\6\7\10\11\12\13", 12));
    expectPatches(pageWithImage(pdf, image), &Ink::postScript);
}

TEST(PrintColour, IsInterpolatedBetweenTheOverprintsWithoutAProfile)
{
    PrintColour colour{ QByteArray() };
    ASSERT_FALSE(colour.hasProfile());
    const QByteArray inks = inkRows(1, 1);
    std::array<unsigned char, 3 * Count> screen{};
    colour.toScreen(reinterpret_cast<const unsigned char*>(inks.constData()), screen.data(), Count);
    for (size_t i = 0; i < 7; ++i) { // the overprints themselves
        for (size_t k = 0; k < 3; ++k)
            EXPECT_EQ(screen[3 * i + k], Inks[i].coated[k]);
    }
    for (size_t i = 7; i < Count; ++i) {
        for (size_t k = 0; k < 3; ++k)
            EXPECT_NEAR(screen[3 * i + k], Inks[i].coated[k], 40);
    }
}

TEST(PrintColour, KeepsScreenColoursThatPassThroughAnInkGroup)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = Strip,
        .content = "0.8 0.5 0.35 rg 0 0 600 100 re f 0.5 g 600 0 600 100 re f",
        .entries = "/Group << /S /Transparency /CS /DeviceCMYK >>" });
    ServiceSession session;
    session.open(pdf.build());
    session.render(0, 1);
    const RGB brown = session.picture().at(300, 50);
    EXPECT_NEAR(brown[0], 204, 4);
    EXPECT_NEAR(brown[1], 128, 4);
    EXPECT_NEAR(brown[2], 89, 4);
}
