// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/TolerantDevice.h"

namespace leafcast::service {

namespace {

    // The functions of the device that is being drawn on, for the ones below to call.
    struct {
        decltype(fz_device::fill_image) fillImage;
        decltype(fz_device::fill_image_mask) fillImageMask;
        decltype(fz_device::fill_shade) fillShade;
        bool* damaged;
    } drawing;

    template <typename Call> [[gnu::noinline]] void tolerate(fz_context* context, Call call)
    {
        fz_try(context)
        {
            call();
        }
        fz_catch(context)
        {
            fz_rethrow_if(context, FZ_ERROR_MEMORY);
            fz_rethrow_if(context, FZ_ERROR_ABORT);
            *drawing.damaged = true;
        }
    }

    void fillImage(fz_context* context, fz_device* device, fz_image* image, fz_matrix matrix,
        float alpha, fz_color_params parameters)
    {
        tolerate(
            context, [&] { drawing.fillImage(context, device, image, matrix, alpha, parameters); });
    }

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

void tolerateDamage(fz_device* device, bool* damaged)
{
    drawing = { device->fill_image, device->fill_image_mask, device->fill_shade, damaged };
    device->fill_image = fillImage;
    device->fill_image_mask = fillImageMask;
    device->fill_shade = fillShade;
}

} // namespace leafcast::service
