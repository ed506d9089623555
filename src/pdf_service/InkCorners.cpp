// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/InkCorners.h"

#include <algorithm>
#include <array>

namespace leafcast::service {

namespace {

    using RGB = std::array<int, 3>;

    // Index: cyan 1, magenta 2, yellow 4, black 8. Measured from the CMYK profile that comes with
    // Ghostscript (coated paper), relative colorimetric with black point compensation.
    constexpr std::array<RGB, 16> Corners{ { RGB{ 255, 255, 255 }, RGB{ 0, 174, 239 },
        RGB{ 236, 0, 140 }, RGB{ 46, 48, 146 }, RGB{ 255, 242, 0 }, RGB{ 0, 166, 80 },
        RGB{ 237, 28, 36 }, RGB{ 54, 54, 57 }, RGB{ 35, 31, 32 }, RGB{ 0, 14, 35 }, RGB{ 35, 0, 0 },
        RGB{ 0, 0, 1 }, RGB{ 27, 26, 0 }, RGB{ 0, 18, 0 }, RGB{ 34, 0, 0 }, RGB{ 0, 0, 0 } } };

    int mixed(int without, int with, int ink)
    {
        return (without * (255 - ink) + with * ink + 127) / 255;
    }

    // Halves the cube of corners along one ink after the other.
    RGB interpolated(const unsigned char* inks)
    {
        std::array<RGB, 16> cube = Corners;
        for (size_t ink = 4; ink-- > 0;) {
            const size_t half = size_t{ 1 } << ink;
            for (size_t i = 0; i < half; ++i) {
                for (size_t k = 0; k < 3; ++k)
                    cube[i][k] = mixed(cube[i][k], cube[i + half][k], inks[ink]);
            }
        }
        return cube[0];
    }

} // namespace

void interpolateInkCorners(const unsigned char* cmyk, unsigned char* rgb, size_t pixels)
{
    for (; pixels > 0; --pixels, cmyk += 4, rgb += 3) {
        const RGB colour = interpolated(cmyk);
        std::copy(colour.begin(), colour.end(), rgb);
    }
}

void separateSimply(const unsigned char* rgb, unsigned char* cmyk, size_t pixels)
{
    for (; pixels > 0; --pixels, rgb += 3, cmyk += 4) {
        const int brightest = std::max({ rgb[0], rgb[1], rgb[2] });
        for (size_t i = 0; i < 3; ++i)
            cmyk[i] = static_cast<unsigned char>(brightest - rgb[i]);
        cmyk[3] = static_cast<unsigned char>(255 - brightest);
    }
}

} // namespace leafcast::service
