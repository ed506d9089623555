// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PixmapConversion.h"

#include "pdf_service/PrintColour.h"

#include <vector>

namespace leafcast::service {

namespace {

    using Row = std::vector<unsigned char>;

    unsigned char* rowOf(const fz_pixmap* pixmap, int y)
    {
        return pixmap->samples + y * pixmap->stride;
    }

    unsigned char multiplied(int value, int alpha)
    {
        return static_cast<unsigned char>((value * alpha + 127) / 255);
    }

    unsigned char divided(int value, int alpha)
    {
        const int result = alpha == 0 ? 0 : (value * 255 + alpha / 2) / alpha;
        return static_cast<unsigned char>(std::min(result, 255));
    }

    void takeColours(const fz_pixmap* pixmap, const unsigned char* from, Row& colours)
    {
        const int components = pixmap->n - pixmap->alpha;
        unsigned char* to = colours.data();
        for (int x = 0; x < pixmap->w; ++x, from += pixmap->n) {
            const int alpha = pixmap->alpha != 0 ? from[components] : 255;
            for (int i = 0; i < components; ++i)
                *to++ = divided(from[i], alpha);
        }
    }

    void mixToGrey(Row& rgb)
    {
        const unsigned char* from = rgb.data();
        for (size_t i = 0; i < rgb.size() / 3; ++i, from += 3)
            rgb[i] = static_cast<unsigned char>(
                (299 * from[0] + 587 * from[1] + 114 * from[2] + 500) / 1000);
    }

    void putColours(const Row& colours, const fz_pixmap* alphas, const unsigned char* alphaRow,
        const fz_pixmap* pixmap, unsigned char* to)
    {
        const int components = pixmap->n - pixmap->alpha;
        const unsigned char* from = colours.data();
        alphaRow += alphas->n - 1;
        for (int x = 0; x < pixmap->w; ++x, alphaRow += alphas->n) {
            const int alpha = alphas->alpha != 0 ? *alphaRow : 255;
            for (int i = 0; i < components; ++i)
                *to++ = pixmap->alpha != 0 ? multiplied(*from++, alpha) : *from++;
            if (pixmap->alpha != 0)
                *to++ = static_cast<unsigned char>(alpha);
        }
    }

    void convert(PrintColour& colour, bool fromInk, const unsigned char* from, unsigned char* to,
        size_t pixels)
    {
        if (fromInk)
            colour.toScreen(from, to, pixels);
        else
            colour.toInk(from, to, pixels);
    }

} // namespace

void convertPixmap(PrintColour& colour, const fz_pixmap* source, fz_pixmap* destination) noexcept
{
    const auto width = static_cast<size_t>(source->w);
    const bool fromInk = source->colorspace->type == FZ_COLORSPACE_CMYK;
    const bool toGrey = destination->colorspace->type == FZ_COLORSPACE_GRAY;
    const bool plain = source->alpha == 0 && destination->alpha == 0 && !toGrey;
    Row before(width * (fromInk ? 4 : 3));
    Row after(width * (fromInk ? 3 : 4));
    for (int y = 0; y < source->h; ++y) {
        const unsigned char* from = rowOf(source, y);
        unsigned char* to = rowOf(destination, y);
        if (plain) {
            convert(colour, fromInk, from, to, width);
            continue;
        }
        takeColours(source, from, before);
        convert(colour, fromInk, before.data(), after.data(), width);
        if (toGrey)
            mixToGrey(after);
        putColours(after, source, from, destination, to);
    }
}

} // namespace leafcast::service
