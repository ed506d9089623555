// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/DamageWatch.h"

#include <mupdf/pdf.h>

// A picture is also left out, with --wrap, when already its description can't be read: only a
// syntax error lets the library's interpreter go on with what follows.
// NOLINTBEGIN(bugprone-reserved-identifier): the linker makes these names
extern "C" {
fz_image* __real_pdf_load_image(fz_context*, pdf_document*, pdf_obj*);
fz_image* __wrap_pdf_load_image(fz_context*, pdf_document*, pdf_obj*);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace leafcast::service {

namespace {

    // The functions of the device that is being drawn on, for the ones below to call.
    struct {
        decltype(fz_device::fill_image) fillImage;
        decltype(fz_device::fill_image_mask) fillImageMask;
        decltype(fz_device::fill_shade) fillShade;
        bool damaged;
    } drawing;

    void noteUnlessFatal(fz_context* context)
    {
        fz_rethrow_if(context, FZ_ERROR_MEMORY);
        fz_rethrow_if(context, FZ_ERROR_ABORT); // how a colour ends the search for colour
        drawing.damaged = true;
    }

    template <typename Call> [[gnu::noinline]] void tolerate(fz_context* context, Call call)
    {
        fz_try(context)
        {
            call();
        }
        fz_catch(context)
        {
            noteUnlessFatal(context);
        }
    }

    void fillImage(fz_context* context, fz_device* device, fz_image* image, fz_matrix matrix,
        float alpha, fz_color_params parameters)
    {
        tolerate(
            context, [&] { drawing.fillImage(context, device, image, matrix, alpha, parameters); });
    }

    // NOLINTNEXTLINE(readability-function-size): the library's signature
    void fillImageMask(fz_context* context, fz_device* device, fz_image* image, fz_matrix matrix,
        fz_colorspace* space, const float* colour, float alpha, fz_color_params parameters)
    {
        tolerate(context, [&] {
            drawing.fillImageMask(context, device, image, matrix, space, colour, alpha, parameters);
        });
    }

    void fillShade(fz_context* context, fz_device* device, fz_shade* shade, fz_matrix matrix,
        float alpha, fz_color_params parameters)
    {
        tolerate(
            context, [&] { drawing.fillShade(context, device, shade, matrix, alpha, parameters); });
    }

} // namespace

DamageWatch::DamageWatch(fz_device* device)
{
    drawing = { device->fill_image, device->fill_image_mask, device->fill_shade, false };
    device->fill_image = fillImage;
    device->fill_image_mask = fillImageMask;
    device->fill_shade = fillShade;
}

DamageWatch::~DamageWatch()
{
    drawing = {};
}

bool DamageWatch::damaged() const
{
    return drawing.damaged;
}

} // namespace leafcast::service

fz_image* __wrap_pdf_load_image(fz_context* context, pdf_document* document, pdf_obj* object)
{
    fz_image* image = nullptr;
    fz_var(image);
    fz_try(context)
    {
        image = __real_pdf_load_image(context, document, object);
    }
    fz_catch(context)
    {
        leafcast::service::noteUnlessFatal(context);
        fz_throw(context, FZ_ERROR_SYNTAX, "a picture can't be read");
    }
    return image;
}
