// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/FineColour.h"

#include <array>
#include <cstdlib>
#include <cstring>

namespace leafcast::service {

namespace {

    constexpr int LargestChange = 16;
    constexpr size_t PixelsPerChangedPixel = 200; // 0.5 percent

    // Both in 1/65536, without the offset of 128 (JFIF).
    struct Chrominance {
        int blue;
        int red;
    };

    Chrominance chrominance(const unsigned char* pixel)
    {
        const int r = pixel[0];
        const int g = pixel[1];
        const int b = pixel[2];
        return { -11059 * r - 21709 * g + 32768 * b, 32768 * r - 27439 * g - 5329 * b };
    }

    constexpr int Run = 8; // pixels looked at together

    // Whether all pixels of a run, in both rows, are the same.
    bool isFlat(const unsigned char* upper, const unsigned char* lower)
    {
        return std::memcmp(upper, lower, 3 * Run) == 0
            && std::memcmp(upper, upper + 3, 3 * (Run - 1)) == 0;
    }

    bool isGrey(const unsigned char* row)
    {
        int difference = 0;
        for (int i = 0; i < 3 * Run; i += 3)
            difference |= (row[i] ^ row[i + 1]) | (row[i] ^ row[i + 2]);
        return difference == 0;
    }

    size_t changedInBlock(const unsigned char* upper, const unsigned char* lower)
    {
        const std::array<Chrominance, 4> block{ chrominance(upper), chrominance(upper + 3),
            chrominance(lower), chrominance(lower + 3) };
        int blue = 0;
        int red = 0;
        for (const Chrominance& pixel : block) {
            blue += pixel.blue;
            red += pixel.red;
        }
        size_t changed = 0;
        for (const Chrominance& pixel : block) {
            const int change
                = std::max(std::abs(pixel.blue - blue / 4), std::abs(pixel.red - red / 4));
            changed += change > (LargestChange << 16) ? 1U : 0U;
        }
        return changed;
    }

    size_t changedInRun(const unsigned char* upper, const unsigned char* lower, int width)
    {
        size_t changed = 0;
        for (int x = 0; x + 1 < width; x += 2)
            changed += changedInBlock(upper + 3 * x, lower + 3 * x);
        return changed;
    }

    size_t changedInRows(const unsigned char* upper, const unsigned char* lower, int width)
    {
        size_t changed = 0;
        for (; width >= Run; width -= Run, upper += 3 * Run, lower += 3 * Run) {
            if (!isFlat(upper, lower) && !(isGrey(upper) && isGrey(lower)))
                changed += changedInRun(upper, lower, Run);
        }
        return changed + changedInRun(upper, lower, width);
    }

} // namespace

bool hasFineColour(const Bitmap& bitmap)
{
    if (bitmap.components != 3)
        return false;
    const size_t pixels = static_cast<size_t>(bitmap.width) * static_cast<size_t>(bitmap.height);
    size_t changed = 0;
    for (int y = 0; y + 1 < bitmap.height; y += 2) {
        changed += changedInRows(bitmap.row(y), bitmap.row(y + 1), bitmap.width);
        if (changed * PixelsPerChangedPixel > pixels)
            return true;
    }
    return false;
}

} // namespace leafcast::service
