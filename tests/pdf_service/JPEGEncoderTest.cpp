// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/JPEGEncoder.h"
#include "pdf_service/DecodedJPEG.h"
#include "pdf_service/FineColour.h"

#include <cstdio> // jpeglib.h needs it before
#include <gtest/gtest.h>
#include <jpeglib.h>
#include <random>

using namespace leafcast::service;

namespace {

Bitmap bitmap(int width, int height, int components = 3)
{
    Bitmap result{ width, height, components };
    result.pixels.assign(result.bytes(), 255);
    return result;
}

// Something of everything: noise, edges, flat areas, smooth steps.
Bitmap busyBitmap(int width, int height, int components)
{
    Bitmap result = bitmap(width, height, components);
    std::minstd_rand random(7);
    for (size_t i = 0; i < result.bytes(); ++i) {
        const size_t y = i / result.stride();
        if (y % 64 < 16)
            result.pixels[i] = static_cast<unsigned char>(random());
        else if (y % 64 < 32)
            result.pixels[i] = static_cast<unsigned char>(i / 7);
        else if (i % 97 < 9)
            result.pixels[i] = 0;
    }
    return result;
}

QByteArray encoded(const Bitmap& bitmap, const JPEGOptions& options)
{
    std::vector<unsigned char> output;
    encodeJPEG(bitmap, options, output);
    return QByteArray(
        reinterpret_cast<char*>(output.data()), static_cast<qsizetype>(output.size()));
}

// What the library writes when left alone.
QByteArray encodedByTheLibrary(const Bitmap& bitmap, int quality, int sampling)
{
    jpeg_compress_struct library{};
    jpeg_error_mgr errors{};
    library.err = jpeg_std_error(&errors);
    jpeg_create_compress(&library);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&library, &bytes, &size);
    library.image_width = static_cast<JDIMENSION>(bitmap.width);
    library.image_height = static_cast<JDIMENSION>(bitmap.height);
    library.input_components = bitmap.components;
    library.in_color_space = bitmap.components == 1 ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&library);
    jpeg_set_quality(&library, quality, TRUE);
    library.optimize_coding = TRUE;
    library.density_unit = 1;
    library.X_density = 72;
    library.Y_density = 72;
    library.comp_info[0].h_samp_factor = sampling;
    library.comp_info[0].v_samp_factor = sampling;
    jpeg_start_compress(&library, TRUE);
    while (library.next_scanline < library.image_height) {
        auto* row = const_cast<JSAMPROW>(bitmap.row(static_cast<int>(library.next_scanline)));
        jpeg_write_scanlines(&library, &row, 1);
    }
    jpeg_finish_compress(&library);
    QByteArray result(reinterpret_cast<char*>(bytes), static_cast<qsizetype>(size));
    jpeg_destroy_compress(&library);
    free(bytes);
    return result;
}

// Paints the first pixels of the picture, every second one.
Bitmap withRedDots(int count)
{
    Bitmap result = bitmap(200, 200);
    for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
        const size_t pixel = 2 * (i % 100) + 200 * 2 * (i / 100);
        result.pixels[3 * pixel + 1] = 0;
        result.pixels[3 * pixel + 2] = 0;
    }
    return result;
}

} // namespace

TEST(JPEGEncoder, WritesTheBytesThatTheLibrarysOwnOptimisationWrites)
{
    for (const int quality : { 1, 30, 95, 100 }) {
        const Bitmap grey = busyBitmap(203, 301, 1);
        EXPECT_TRUE(
            encoded(grey, { quality, Chroma::Halved }) == encodedByTheLibrary(grey, quality, 1));
        const Bitmap colour = busyBitmap(203, 301, 3);
        EXPECT_TRUE(
            encoded(colour, { quality, Chroma::Full }) == encodedByTheLibrary(colour, quality, 1));
        const Bitmap white = bitmap(17, 33);
        EXPECT_TRUE(
            encoded(white, { quality, Chroma::Halved }) == encodedByTheLibrary(white, quality, 2));
    }
}

TEST(JPEGEncoder, WritesABaselinePictureAt72DotsPerInch)
{
    const DecodedJPEG colour = DecodedJPEG::decode(encoded(bitmap(50, 40), { 30, Chroma::Halved }));
    EXPECT_EQ(colour.width, 50);
    EXPECT_EQ(colour.height, 40);
    EXPECT_EQ(colour.components, 3);
    EXPECT_EQ(colour.horizontalSampling, 2);
    EXPECT_EQ(colour.dotsPerInch, 72);
    EXPECT_FALSE(colour.progressive);
    const DecodedJPEG full = DecodedJPEG::decode(encoded(bitmap(50, 40), { 95, Chroma::Full }));
    EXPECT_EQ(full.horizontalSampling, 1);
    const DecodedJPEG grey
        = DecodedJPEG::decode(encoded(bitmap(50, 40, 1), { 30, Chroma::Halved }));
    EXPECT_EQ(grey.components, 1);
    EXPECT_EQ(grey.at(49, 39), (DecodedJPEG::Pixel{ 255, 255, 255 }));
}

TEST(JPEGEncoder, GrowsItsOutputForAPictureThatDoesNotCompress)
{
    Bitmap noise = bitmap(1500, 1500);
    std::minstd_rand random(1);
    for (unsigned char& value : noise.pixels)
        value = static_cast<unsigned char>(random() >> 8);
    const QByteArray bytes = encoded(noise, { 100, Chroma::Full });
    EXPECT_GT(bytes.size(), 2 << 20);
    EXPECT_EQ(DecodedJPEG::decode(bytes).height, 1500);
}

TEST(JPEGEncoder, KeepsFullColourResolutionWhereFineDetailNeedsIt)
{
    EXPECT_EQ(
        DecodedJPEG::decode(encoded(withRedDots(1000), { 30, Chroma::Halved })).horizontalSampling,
        1);
    EXPECT_EQ(
        DecodedJPEG::decode(encoded(withRedDots(10), { 30, Chroma::Halved })).horizontalSampling,
        2);
}

TEST(FineColour, BeginsAboveHalfAPercentOfThePixels)
{
    // The dot itself changes by more than 16 in Cr; its three neighbours do too.
    EXPECT_FALSE(hasFineColour(withRedDots(50)));
    EXPECT_TRUE(hasFineColour(withRedDots(51)));
}

TEST(FineColour, IsNotSeenInFlatColourOrGreyDetail)
{
    Bitmap flat = bitmap(64, 64);
    for (size_t i = 0; i < flat.bytes(); i += 3)
        flat.pixels[i] = 0;
    EXPECT_FALSE(hasFineColour(flat));
    Bitmap checks = bitmap(63, 63);
    for (size_t i = 0; i < checks.bytes(); ++i)
        checks.pixels[i] = i / 3 % 2 == 0 ? 0 : 255;
    EXPECT_FALSE(hasFineColour(checks));
    EXPECT_FALSE(hasFineColour(busyBitmap(64, 64, 1)));
}
