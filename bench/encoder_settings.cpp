// SPDX-License-Identifier: MIT
// Prints each distinct encoder setting once, in rising order of the compression factor that leads
// to it: factor, quality, chroma.

#include "pdf/PDFImageRep.h"

#include <cstdio>

int main()
{
    constexpr int Steps = 1000;
    leafcast::JPEGSettings previous{ 0, false };
    for (int step = 0; step <= Steps; ++step) {
        const double factor = double(step) / Steps;
        const leafcast::JPEGSettings settings = leafcast::jpegSettings(factor);
        if (settings.quality == previous.quality && settings.fullChroma == previous.fullChroma)
            continue;
        std::printf("%.3f %d %s\n", factor, settings.quality, settings.fullChroma ? "444" : "420");
        previous = settings;
    }
    return 0;
}
