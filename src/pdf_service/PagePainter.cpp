// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PagePainter.h"

#include "pdf_service/ColourProbe.h"
#include "pdf_service/DamageWatch.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    constexpr double LongestSide = 65'500; // JPEG_MAX_DIMENSION
    constexpr double WorthShrinking = 32.0 * 1024 * 1024;
    constexpr size_t KeptBytes = size_t{ 32 } << 20U;

    // A page of 612.0001 points is not worth a further row of pixels.
    double pixels(double points, double scale)
    {
        return std::max(1.0, std::ceil(points * scale - 0.001));
    }

    double bitmapBytes(const PageGeometry& page, double scale)
    {
        return 3 * pixels(page.displayedWidth(), scale) * pixels(page.displayedHeight(), scale);
    }

    double fittingScale(const PageGeometry& page, const PaintOptions& options)
    {
        const double longest = std::max(page.displayedWidth(), page.displayedHeight());
        double scale = std::min(options.scale, LongestSide / longest);
        const double bytes = bitmapBytes(page, scale);
        if (bytes > options.maximumBytes)
            scale *= std::sqrt(options.maximumBytes / bytes);
        while (bitmapBytes(page, scale) > options.maximumBytes && scale * longest > 1)
            scale *= 0.999; // rounding up to whole pixels
        return scale;
    }

    // Keeps what an ordinary page needs for the next one, but not the memory of a giant.
    void reserve(std::vector<unsigned char>& pixels, size_t bytes)
    {
        if (pixels.size() >= bytes && pixels.size() <= KeptBytes)
            return;
        pixels = {}; // before the new block is asked for
        try {
            pixels.resize(bytes);
        } catch (const std::bad_alloc&) {
            throw ServiceError(ErrorCode::Memory, u"its picture needs too much memory"_s);
        }
    }

    void prepare(Bitmap& bitmap, const PageGeometry& page, double scale, int components)
    {
        bitmap.width = static_cast<int>(pixels(page.displayedWidth(), scale));
        bitmap.height = static_cast<int>(pixels(page.displayedHeight(), scale));
        bitmap.components = components;
        reserve(bitmap.pixels, bitmap.bytes());
        std::fill_n(bitmap.pixels.begin(), bitmap.bytes(), static_cast<unsigned char>(255));
    }

    bool isBlank(const Bitmap& bitmap)
    {
        return std::all_of(bitmap.pixels.begin(),
            bitmap.pixels.begin() + static_cast<std::ptrdiff_t>(bitmap.bytes()),
            [](unsigned char value) { return value == 255; });
    }

    fz_pixmap* pixmapOver(fz_context* context, Bitmap& bitmap)
    {
        fz_colorspace* space
            = bitmap.components == 1 ? fz_device_gray(context) : fz_device_rgb(context);
        return fz_new_pixmap_with_data(context, space, bitmap.width, bitmap.height, nullptr, 0,
            static_cast<int>(bitmap.stride()), bitmap.pixels.data());
    }

    struct Drawing {
        const LoadedPage& page;
        const Library& library;
        HeldPixmap pixmap;
        HeldDevice device;
        bool incomplete = false;

        Drawing(const LoadedPage& loaded, Bitmap& bitmap)
            : page(loaded)
            , library(loaded.document().mupdf())
            , pixmap(library.context())
            , device(library.context())
        {
            library.guarded(ErrorCode::Memory, [&] {
                pixmap.take(pixmapOver(library.context(), bitmap));
                device.take(fz_new_draw_device(library.context(), fz_identity, pixmap.get()));
            });
        }

        // Draws as much of the page as can be read.
        void run(const Bitmap& bitmap)
        {
            const DamageWatch watch(device.get());
            const double width = bitmap.width;
            const double height = bitmap.height;
            if (!library.attempt([&] { page.runContents(device.get(), width, height); }))
                keepUnless(isBlank(bitmap));
            if (!library.attempt([&] { page.runAnnotations(device.get(), width, height); }))
                keepUnless(false);
            incomplete |= watch.damaged();
            library.guarded(
                ErrorCode::Page, [&] { fz_close_device(library.context(), device.get()); });
        }

        // Part of a page is better than none, unless there is nothing of it or memory ran out.
        void keepUnless(bool nothing)
        {
            if (nothing || fz_caught(library.context()) == FZ_ERROR_MEMORY)
                library.guarded(ErrorCode::Page, [&] { fz_rethrow(library.context()); });
            incomplete = true;
        }
    };

    PaintResult paintAt(double scale, const LoadedPage& page, ColourNeed colour, Bitmap& bitmap)
    {
        prepare(bitmap, page.geometry(), scale, colour == ColourNeed::None ? 1 : 3);
        Drawing drawing(page, bitmap);
        drawing.run(bitmap);
        if (colour == ColourNeed::Unknown && !hasColour(bitmap))
            convertToGrey(bitmap);
        return { scale, drawing.incomplete };
    }

} // namespace

PaintResult paintPage(const LoadedPage& page, const PaintOptions& options, Bitmap& bitmap)
{
    double scale = fittingScale(page.geometry(), options);
    const ColourNeed colour = colourNeedOf(page);
    for (;;) {
        try {
            return paintAt(scale, page, colour, bitmap);
        } catch (const ServiceError& error) {
            // Transparency needs further bitmaps of the same size.
            if (error.code() != ErrorCode::Memory
                || bitmapBytes(page.geometry(), scale) < WorthShrinking)
                throw;
            scale /= 2;
        }
    }
}

} // namespace leafcast::service
