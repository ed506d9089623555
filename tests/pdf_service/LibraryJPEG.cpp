// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/LibraryJPEG.h"

#include <algorithm>
#include <cstdio> // jpeglib.h needs it before
#include <jpeglib.h>

namespace leafcast::service {

DecodedJPEG DecodedJPEG::decode(const QByteArray& bytes)
{
    jpeg_decompress_struct library{};
    jpeg_error_mgr errors{};
    library.err = jpeg_std_error(&errors); // ends the test program on a broken file
    jpeg_create_decompress(&library);
    jpeg_mem_src(&library, reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&library, TRUE);
    library.out_color_space = JCS_RGB;
    jpeg_start_decompress(&library);
    DecodedJPEG result;
    result.width = static_cast<int>(library.output_width);
    result.height = static_cast<int>(library.output_height);
    result.components = 3;
    result.isGrey = library.num_components == 1;
    result.pixels.resize(result.bytes());
    while (library.output_scanline < library.output_height) {
        JSAMPROW row = result.pixels.data() + result.stride() * library.output_scanline;
        jpeg_read_scanlines(&library, &row, 1);
    }
    jpeg_destroy_decompress(&library);
    return result;
}

Pixel DecodedJPEG::at(int x, int y) const
{
    const unsigned char* pixel = row(y) + ptrdiff_t{ 3 } * x;
    return { pixel[0], pixel[1], pixel[2] };
}

QByteArray encodedByTheLibrary(const Bitmap& bitmap, int quality, int sampling)
{
    jpeg_compress_struct library{};
    jpeg_error_mgr errors{};
    library.err = jpeg_std_error(&errors);
    jpeg_create_compress(&library);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&library, &bytes, &size);
    library.image_width = static_cast<JDIMENSION>(bitmap.width);
    library.image_height = static_cast<JDIMENSION>(bitmap.height);
    library.input_components = bitmap.components;
    constexpr J_COLOR_SPACE spaces[] = { JCS_GRAYSCALE, JCS_UNKNOWN, JCS_RGB, JCS_CMYK };
    library.in_color_space = spaces[bitmap.components - 1];
    jpeg_set_defaults(&library);
    jpeg_set_quality(&library, quality, TRUE);
    library.optimize_coding = TRUE;
    library.density_unit = 1;
    library.X_density = library.Y_density = 72;
    library.comp_info[0].h_samp_factor = library.comp_info[0].v_samp_factor = sampling;
    jpeg_start_compress(&library, TRUE);
    while (library.next_scanline < library.image_height) {
        auto* row = const_cast<JSAMPROW>(bitmap.row(static_cast<int>(library.next_scanline)));
        jpeg_write_scanlines(&library, &row, 1);
    }
    jpeg_finish_compress(&library);
    QByteArray result(reinterpret_cast<char*>(bytes), static_cast<qsizetype>(size));
    jpeg_destroy_compress(&library);
    free(bytes);
    return result;
}

bool isNear(const Pixel& found, const Pixel& expected, int tolerance)
{
    return std::ranges::equal(
        found, expected, [&](int a, int b) { return std::abs(a - b) <= tolerance; });
}

} // namespace leafcast::service
