// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace leafcast {

namespace {

    // At these qualities the quantisation tables turn pure white into 253 or 254, a visible frame
    // around a page on white. Below the lowest that is used here there are more.
    constexpr std::array greyWhites{ 33, 34, 38, 41, 42, 43, 44, 45 };

    bool turnsWhiteGrey(int quality)
    {
        return std::ranges::binary_search(greyWhites, quality);
    }

} // namespace

JPEGSettings jpegSettings(double compressionFactor)
{
    const double factor = std::clamp(compressionFactor, 0.0, 1.0);
    int quality = static_cast<int>(std::lround(30 + 65 * factor));
    while (turnsWhiteGrey(quality))
        ++quality;
    return { .quality = quality, .fullChroma = factor >= 0.5 };
}

} // namespace leafcast
