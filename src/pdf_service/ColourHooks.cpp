// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ColourHooks.h"

#include "pdf_service/PixmapConversion.h"
#include "pdf_service/PrintColour.h"

#include <mupdf/fitz.h>

// The library's own types of source/fitz/color-imp.h, as built without colour management.
extern "C" {
struct fz_color_converter;
using ColourFunction = void(fz_context*, fz_color_converter*, const float*, float*);
struct fz_color_converter {
    ColourFunction* convert;
    ColourFunction* convertVia;
    fz_colorspace* destination;
    fz_colorspace* source;
};

ColourFunction* __real_fz_lookup_fast_color_converter(fz_context*, fz_colorspace*, fz_colorspace*);
ColourFunction* __wrap_fz_lookup_fast_color_converter(fz_context*, fz_colorspace*, fz_colorspace*);
void __real_fz_convert_fast_pixmap_samples(fz_context*, const fz_pixmap*, fz_pixmap*, int);
void __wrap_fz_convert_fast_pixmap_samples(fz_context*, const fz_pixmap*, fz_pixmap*, int);
}

namespace leafcast::service {

namespace {

    PrintColour* printColour = nullptr; // the worker has one thread and one document

    void inkToScreen(fz_context*, fz_color_converter*, const float* cmyk, float* rgb)
    {
        printColour->toScreen(cmyk, rgb);
    }

    void inkToGrey(fz_context*, fz_color_converter*, const float* cmyk, float* grey)
    {
        float rgb[3];
        printColour->toScreen(cmyk, rgb);
        *grey = 0.299F * rgb[0] + 0.587F * rgb[1] + 0.114F * rgb[2];
    }

    void screenToInk(fz_context*, fz_color_converter*, const float* rgb, float* cmyk)
    {
        printColour->toInk(rgb, cmyk);
    }

    ColourFunction* functionFor(int source, int destination)
    {
        if (source == FZ_COLORSPACE_CMYK && destination == FZ_COLORSPACE_RGB)
            return inkToScreen;
        if (source == FZ_COLORSPACE_CMYK && destination == FZ_COLORSPACE_GRAY)
            return inkToGrey;
        // Grey stays with the library: it becomes black ink alone.
        if (source == FZ_COLORSPACE_RGB && destination == FZ_COLORSPACE_CMYK)
            return screenToInk;
        return nullptr;
    }

    bool isOurs(const fz_pixmap* source, const fz_pixmap* destination)
    {
        return printColour != nullptr && source->colorspace != nullptr
            && destination->colorspace != nullptr && source->s == 0 && destination->s == 0
            && functionFor(source->colorspace->type, destination->colorspace->type) != nullptr;
    }

} // namespace

void setPrintColour(PrintColour* converter)
{
    printColour = converter;
}

} // namespace leafcast::service

using namespace leafcast::service;

ColourFunction* __wrap_fz_lookup_fast_color_converter(
    fz_context* context, fz_colorspace* source, fz_colorspace* destination)
{
    ColourFunction* function
        = printColour != nullptr ? functionFor(source->type, destination->type) : nullptr;
    return function != nullptr
        ? function
        : __real_fz_lookup_fast_color_converter(context, source, destination);
}

void __wrap_fz_convert_fast_pixmap_samples(
    fz_context* context, const fz_pixmap* source, fz_pixmap* destination, int copySpots)
{
    if (isOurs(source, destination))
        convertPixmap(*printColour, source, destination);
    else
        __real_fz_convert_fast_pixmap_samples(context, source, destination, copySpots);
}
