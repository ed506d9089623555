// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstdio> // jpeglib.h needs it before
#include <cstdlib>
#include <jpeglib.h>
#include <vector>

namespace leafcast {

/// One component is grey, three are RGB, four CMYK; rows without padding.
struct RawPicture {
    const unsigned char* pixels;
    int width, height, components;
};

/// What the library writes when left alone, with optimised tables; an error ends the program.
inline std::vector<unsigned char> encodedByTheLibrary(
    const RawPicture& picture, int quality, int sampling)
{
    constexpr J_COLOR_SPACE spaces[] = { JCS_GRAYSCALE, JCS_UNKNOWN, JCS_RGB, JCS_CMYK };
    jpeg_compress_struct library{};
    jpeg_error_mgr errors{};
    library.err = jpeg_std_error(&errors);
    jpeg_create_compress(&library);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&library, &bytes, &size);
    library.image_width = static_cast<JDIMENSION>(picture.width);
    library.image_height = static_cast<JDIMENSION>(picture.height);
    library.input_components = picture.components;
    library.in_color_space = spaces[picture.components - 1];
    jpeg_set_defaults(&library);
    jpeg_set_quality(&library, quality, TRUE);
    library.optimize_coding = TRUE;
    library.density_unit = 1;
    library.X_density = library.Y_density = 72;
    library.comp_info[0].h_samp_factor = library.comp_info[0].v_samp_factor = sampling;
    jpeg_start_compress(&library, TRUE);
    auto* row = const_cast<JSAMPROW>(picture.pixels); // only read
    for (int y = 0; y < picture.height; ++y, row += picture.width * picture.components)
        jpeg_write_scanlines(&library, &row, 1);
    jpeg_finish_compress(&library);
    jpeg_destroy_compress(&library);
    std::vector<unsigned char> result(bytes, bytes + size);
    free(bytes);
    return result;
}

} // namespace leafcast
