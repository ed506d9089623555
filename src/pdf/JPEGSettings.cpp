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

    // A soft gradient, at 36 a grey scan too, comes out smaller at these than at the quality below,
    // as the tables' rounding has it. Bytes are not to fall as the factor grows.
    constexpr std::array shrinkingSteps{ 36, 37 };
    constexpr int bestWithHalvedChroma = 60; // 61 to 63 are smaller again

    bool isSkipped(int quality)
    {
        return std::ranges::binary_search(greyWhites, quality)
            || std::ranges::binary_search(shrinkingSteps, quality);
    }

} // namespace

JPEGSettings jpegSettings(double compressionFactor)
{
    const double factor = std::clamp(compressionFactor, 0.0, 1.0);
    int quality = static_cast<int>(std::lround(30 + 65 * factor));
    while (isSkipped(quality))
        ++quality;
    const bool fullChroma = factor >= 0.5;
    return { .quality = fullChroma ? quality : std::min(quality, bestWithHalvedChroma),
        .fullChroma = fullChroma };
}

} // namespace leafcast
