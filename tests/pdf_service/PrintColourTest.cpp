// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PrintColour.h"
#include "pdf_service/LibraryJPEG.h"
#include "pdf_service/ServiceSession.h"

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

// The colours on screen are what Ghostscript 10.0 shows for a page of fills:
//   gs -q -dNOPAUSE -dBATCH -sDEVICE=ppmraw -r72 -o fills.ppm fills.pdf
// once with its default CMYK profile, once with its ps_cmyk.icc as output intent
// (-dUsePDFX3Profile) or as ICCBased space, which gave the same.
struct Ink {
    std::array<double, 4> cmyk;
    QColor coated;
    QColor postScript;
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

// The pattern once for each ink, with its name, its amounts and its patch put in.
QByteArray forEachInk(const QByteArray& pattern)
{
    QByteArray all;
    for (int i = 0; i < Count; ++i) {
        QByteArray amounts;
        for (const double amount : Inks[i].cmyk)
            amounts += QByteArray::number(amount) + ' ';
        const QByteArray patch = QByteArray::number(i * Patch) + " 0 100 100 re";
        const QByteArray name = "/N" + QByteArray::number(i);
        all += QByteArray(pattern)
                   .replace("NAME", name)
                   .replace("INKS", amounts)
                   .replace("PATCH", patch);
    }
    return all;
}

// Rows of flat patches, four bytes a pixel.
std::vector<unsigned char> inkRows(int side)
{
    std::vector<unsigned char> pixels;
    for (int i = 0; i < Count * side * side; ++i) {
        for (const double amount : Inks[i / side % Count].cmyk)
            pixels.push_back(static_cast<unsigned char>(std::lround(amount * 255)));
    }
    return pixels;
}

QByteArray bytesOf(const std::vector<unsigned char>& bytes)
{
    return QByteArray(
        reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

// As Photoshop writes it: inverted values, put right by /Decode.
QByteArray invertedJPEG()
{
    std::vector<unsigned char> pixels = inkRows(16);
    for (unsigned char& value : pixels)
        value = static_cast<unsigned char>(~value);
    return bytesOf(encodedByTheLibrary({ pixels.data(), Count * 16, 16, 4 }, 100, 1));
}

QByteArray addPostScriptProfile(PDFBuilder& pdf) // of the package libgs-common
{
    const QByteArray profile = readTestFile(u"/usr/share/color/icc/ghostscript/ps_cmyk.icc"_s);
    return PDFBuilder::reference(pdf.addStream("/N 4", profile));
}

void expectPatches(PDFBuilder pdf, PDFBuilder::Page page, QColor Ink::*expected = &Ink::coated)
{
    page.mediaBox = { 0, 0, Count * Patch, Patch };
    pdf.addPage(page);
    ServiceSession session(pdf);
    ASSERT_EQ(errorOf(session.render()), QString());
    const QImage picture = session.picture();
    for (int i = 0; i < Count; ++i)
        expectColour(picture, { i * Patch + Patch / 2, Patch / 2 }, Inks[i].*expected, 2);
}

const QByteArray ImageEntries = "/Type /XObject /Subtype /Image /BitsPerComponent 8 /Width ";

void expectPatchesOfImage(PDFBuilder pdf, int side, const QByteArray& space, const QByteArray& data,
    QColor Ink::*expected)
{
    const int image = pdf.addStream(ImageEntries + QByteArray::number(Count * side) + " /Height "
            + QByteArray::number(side) + " /ColorSpace " + space,
        data);
    expectPatches(pdf,
        { .content = "1200 0 0 100 0 0 cm /Im Do",
            .resources = "/XObject << /Im " + PDFBuilder::reference(image) + " >>" },
        expected);
}

const QByteArray Fills = "INKS k PATCH f\n";

} // namespace

TEST(PrintColour, OfFillsShadingsSeparationsAndATransparencyGroup)
{
    const PDFBuilder::Page pages[] = {
        { .content = forEachInk(Fills) },
        { .content = forEachInk("q PATCH W n NAME sh Q\n"),
            .resources = "/Shading << "
                + forEachInk("NAME << /ShadingType 2 /ColorSpace /DeviceCMYK /Coords [0 0 1200 0]"
                             " /Function << /FunctionType 2 /N 1 /Domain [0 1] /C0 [INKS]"
                             " /C1 [INKS] >> >> ")
                + " >>" },
        { .content = forEachInk("NAME cs 1 scn PATCH f\n"),
            .resources = "/ColorSpace << "
                + forEachInk("NAME [/Separation NAME /DeviceCMYK << /FunctionType 2 /N 1"
                             " /Domain [0 1] /C0 [0 0 0 0] /C1 [INKS] >>] ")
                + " >>" },
        { .content = forEachInk(Fills),
            .entries = "/Group << /S /Transparency /CS /DeviceCMYK >>" },
    };
    for (const PDFBuilder::Page& page : pages)
        expectPatches({}, page);
}

TEST(PrintColour, OfImages)
{
    PDFBuilder pdf;
    const QByteArray mask = PDFBuilder::reference(
        pdf.addStream(ImageEntries + "1 /Height 1 /ColorSpace /DeviceGray", "\xff"));
    const QByteArray icc = "[/ICCBased " + addPostScriptProfile(pdf) + ']';
    const QByteArray indices("\0\1\2\3\4\5\6\7\10\11\12\13", Count);
    const QByteArray palette = '<' + bytesOf(inkRows(1)).toHex() + '>';
    const struct {
        int side;
        QByteArray entries, data;
        QColor Ink::*expected;
    } cases[] = {
        { 4, "/DeviceCMYK", bytesOf(inkRows(4)), &Ink::coated },
        { 100, "/DeviceCMYK", bytesOf(inkRows(100)), &Ink::coated },
        { 4, "/DeviceCMYK /SMask " + mask, bytesOf(inkRows(4)), &Ink::coated },
        { 16, "/DeviceCMYK /Filter /DCTDecode /Decode [1 0 1 0 1 0 1 0]", invertedJPEG(),
            &Ink::coated },
        { 4, icc, bytesOf(inkRows(4)), &Ink::postScript },
        { 1, "[/Indexed " + icc + " 11 " + palette + ']', indices, &Ink::postScript },
    };
    for (const auto& image : cases)
        expectPatchesOfImage(pdf, image.side, image.entries, image.data, image.expected);
}

TEST(PrintColour, FollowsEmbeddedProfilesAndTheOutputIntentUnlessItIsBroken)
{
    PDFBuilder pdf;
    const QByteArray good = addPostScriptProfile(pdf);
    const QByteArray broken = PDFBuilder::reference(pdf.addStream("/N 4", "this is no profile"));
    expectPatches(pdf,
        { .content = "/Own cs " + forEachInk("INKS sc PATCH f\n"),
            .resources = "/ColorSpace << /Own [/ICCBased " + good + "] >>" },
        &Ink::postScript);
    for (const QByteArray& profile : { good, broken }) {
        PDFBuilder intended = pdf;
        intended.addCatalogueEntries(
            "/OutputIntents [null << /S /GTS_PDFX /DestOutputProfile " + profile + " >>]");
        expectPatches(intended, { .content = forEachInk(Fills) },
            profile == good ? &Ink::postScript : &Ink::coated);
    }
}

TEST(PrintColour, IsInterpolatedBetweenTheOverprintsWithoutAProfile)
{
    PrintColour colour{ QByteArray() };
    ASSERT_FALSE(colour.hasProfile());
    QImage screen(Count, 1, QImage::Format_RGB888);
    colour.toScreen(inkRows(1).data(), screen.bits(), Count);
    for (int i = 0; i < Count; ++i) // the first seven are overprints themselves
        expectColour(screen, { i, 0 }, Inks[i].coated, i < 7 ? 0 : 40);
}

TEST(PrintColour, KeepsScreenColoursThatPassThroughAnInkGroup)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 200, 100 },
        .content = "0.8 0.5 0.35 rg 0 0 100 100 re f 0.5 g 100 0 100 100 re f",
        .entries = "/Group << /S /Transparency /CS /DeviceCMYK >>" });
    ServiceSession session(pdf);
    session.render();
    expectColour(session.picture(), { 50, 50 }, { 204, 128, 89 }, 4);
}
