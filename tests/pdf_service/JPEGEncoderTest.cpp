// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/JPEGEncoder.h"
#include "pdf_service/LibraryJPEG.h"

#include <gtest/gtest.h>
#include <random>

using namespace leafcast;
using namespace leafcast::service;

namespace {

Bitmap white(int width, int height, int components = 3)
{
    Bitmap result{ width, height, components };
    result.pixels.assign(result.bytes(), 255);
    return result;
}

// Noise above smooth steps.
Bitmap busy(int width, int height, int components)
{
    Bitmap result = white(width, height, components);
    std::minstd_rand random(7);
    for (size_t i = 0; i < result.bytes(); ++i)
        result.pixels[i] = static_cast<unsigned char>(i < result.bytes() / 2 ? random() : i / 7);
    return result;
}

// Every second pixel at the top is black, or red when only the last two components are painted.
Bitmap withDots(size_t count, size_t firstComponent)
{
    Bitmap result = white(200, 200);
    for (size_t i = 0; i < count; ++i) {
        for (size_t k = firstComponent; k < 3; ++k)
            result.pixels[3 * (2 * (i % 100) + 200 * 2 * (i / 100)) + k] = 0;
    }
    return result;
}

} // namespace

TEST(JPEGEncoder, WritesTheBytesThatTheLibrarysOwnOptimisationWrites)
{
    const struct {
        Bitmap bitmap;
        Chroma chroma;
        int sampling;
    } cases[] = {
        { busy(203, 301, 1), Chroma::Halved, 1 }, { busy(203, 301, 3), Chroma::Full, 1 },
        { white(17, 33), Chroma::Halved, 2 }, { withDots(1000, 0), Chroma::Halved, 2 },
        { withDots(50, 1), Chroma::Halved, 2 },
        { withDots(51, 1), Chroma::Halved, 1 }, // fine colour keeps its resolution
        { busy(1500, 1500, 3), Chroma::Full, 1 }, // beyond 2 MB, so the output has to grow
    };
    for (const auto& [bitmap, chroma, sampling] : cases) {
        for (const int quality : { 1, 30, 95, 100 }) {
            std::vector<unsigned char> output;
            encodeJPEG(bitmap, { quality, chroma }, output);
            const RawPicture picture{ bitmap.pixels.data(), bitmap.width, bitmap.height,
                bitmap.components };
            EXPECT_TRUE(output == encodedByTheLibrary(picture, quality, sampling))
                << bitmap.width << " at quality " << quality;
        }
    }
}
