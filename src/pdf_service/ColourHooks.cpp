// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ColourHooks.h"

#include "pdf_service/PixmapConversion.h"
#include "pdf_service/PrintColours.h"

#include <mupdf/pdf.h>

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

// NOLINTBEGIN(bugprone-reserved-identifier): the linker makes these names
ColourFunction* __real_fz_lookup_fast_color_converter(fz_context*, fz_colorspace*, fz_colorspace*);
ColourFunction* __wrap_fz_lookup_fast_color_converter(fz_context*, fz_colorspace*, fz_colorspace*);
fz_colorspace* __real_pdf_load_colorspace(fz_context*, pdf_obj*);
fz_colorspace* __wrap_pdf_load_colorspace(fz_context*, pdf_obj*);
void __real_fz_convert_fast_pixmap_samples(fz_context*, const fz_pixmap*, fz_pixmap*, int);
void __wrap_fz_convert_fast_pixmap_samples(fz_context*, const fz_pixmap*, fz_pixmap*, int);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace leafcast::service {

namespace {

    PrintColours* printColours = nullptr; // the worker has one thread and one document

    void inkToScreen(fz_context*, fz_color_converter* converter, const float* cmyk, float* rgb)
    {
        printColours->of(converter->source).toScreen(cmyk, rgb);
    }

    void inkToGrey(fz_context*, fz_color_converter* converter, const float* cmyk, float* grey)
    {
        float rgb[3];
        printColours->of(converter->source).toScreen(cmyk, rgb);
        *grey = 0.299F * rgb[0] + 0.587F * rgb[1] + 0.114F * rgb[2];
    }

    void screenToInk(fz_context*, fz_color_converter* converter, const float* rgb, float* cmyk)
    {
        printColours->of(converter->destination).toInk(rgb, cmyk);
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
        return printColours != nullptr && source->colorspace != nullptr
            && destination->colorspace != nullptr && source->s == 0 && destination->s == 0
            && functionFor(source->colorspace->type, destination->colorspace->type) != nullptr;
    }

    // Replaces DeviceCMYK below an indexed or separation space by the embedded profile it stands
    // for.
    void useEmbeddedBase(fz_context* context, fz_colorspace* space, pdf_obj* array)
    {
        const bool indexed = space->type == FZ_COLORSPACE_INDEXED;
        if (!indexed && space->type != FZ_COLORSPACE_SEPARATION)
            return;
        fz_colorspace*& base = indexed ? space->u.indexed.base : space->u.separation.base;
        pdf_obj* baseArray = pdf_array_get(context, array, indexed ? 1 : 2);
        fz_colorspace* embedded = base == fz_device_cmyk(context)
            ? printColours->embedded().spaceFor(baseArray)
            : nullptr;
        if (embedded != nullptr) {
            fz_drop_colorspace(context, base);
            base = fz_keep_colorspace(context, embedded);
        } else {
            useEmbeddedBase(context, base, baseArray);
        }
    }

} // namespace

void setPrintColours(PrintColours* colours)
{
    printColours = colours;
}

} // namespace leafcast::service

using namespace leafcast::service;

ColourFunction* __wrap_fz_lookup_fast_color_converter(
    fz_context* context, fz_colorspace* source, fz_colorspace* destination)
{
    ColourFunction* function
        = printColours != nullptr ? functionFor(source->type, destination->type) : nullptr;
    return function != nullptr
        ? function
        : __real_fz_lookup_fast_color_converter(context, source, destination);
}

void __wrap_fz_convert_fast_pixmap_samples(
    fz_context* context, const fz_pixmap* source, fz_pixmap* destination, int copySpots)
{
    if (!isOurs(source, destination)) {
        __real_fz_convert_fast_pixmap_samples(context, source, destination, copySpots);
        return;
    }
    const bool fromInk = source->colorspace->type == FZ_COLORSPACE_CMYK;
    const fz_pixmap* inks = fromInk ? source : destination;
    convertPixmap(printColours->of(inks->colorspace), source, destination);
}

fz_colorspace* __wrap_pdf_load_colorspace(fz_context* context, pdf_obj* object)
{
    fz_colorspace* embedded
        = printColours != nullptr ? printColours->embedded().spaceFor(object) : nullptr;
    if (embedded != nullptr)
        return fz_keep_colorspace(context, embedded);
    fz_colorspace* space = __real_pdf_load_colorspace(context, object);
    if (printColours != nullptr)
        useEmbeddedBase(context, space, object);
    return space;
}
