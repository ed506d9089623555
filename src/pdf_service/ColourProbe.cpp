// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ColourProbe.h"

#include <algorithm>

namespace leafcast::service {

namespace {
    constexpr float Tolerance = 0.02F;
    constexpr int ToleranceOf255 = 5;
} // namespace

ColourNeed colourNeedOf(const LoadedPage& page)
{
    const Library& library = page.document().mupdf();
    int answer = 0;
    HeldDevice device(library.context());
    const bool finished = library.attempt([&] {
        device.take(fz_new_test_device(library.context(), &answer, Tolerance, 0, nullptr));
        page.runContents(device.get(), 1, 1);
        page.runAnnotations(device.get(), 1, 1);
        fz_close_device(library.context(), device.get());
    });
    if (finished && answer == 0)
        return ColourNeed::None;
    return answer == 2 ? ColourNeed::Certain : ColourNeed::Unknown; // ended at the first colour
}

bool hasColour(const Bitmap& bitmap)
{
    const unsigned char* pixel = bitmap.pixels.data();
    const unsigned char* end = pixel + bitmap.bytes();
    for (; pixel != end; pixel += 3) {
        const auto [low, high] = std::minmax({ pixel[0], pixel[1], pixel[2] });
        if (high - low > ToleranceOf255)
            return true;
    }
    return false;
}

void convertToGrey(Bitmap& bitmap)
{
    const unsigned char* from = bitmap.pixels.data();
    const unsigned char* end = from + bitmap.bytes();
    for (unsigned char* to = bitmap.pixels.data(); from != end; from += 3, ++to)
        *to = static_cast<unsigned char>(
            (19595 * from[0] + 38470 * from[1] + 7471 * from[2] + 32768) >> 16);
    bitmap.components = 1;
}

} // namespace leafcast::service
