// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/DecodedJPEG.h"

#include <cstdio> // jpeglib.h needs it before
#include <jpeglib.h>
#include <QFile>

namespace leafcast::service {

DecodedJPEG DecodedJPEG::read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decode(file.readAll()) : DecodedJPEG{};
}

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
    result.components = library.num_components;
    result.horizontalSampling = library.comp_info[0].h_samp_factor;
    result.dotsPerInch = library.density_unit == 1 ? library.X_density : 0;
    result.progressive = library.progressive_mode != 0;
    result.pixels.resize(size_t{ 3 } * library.output_width * library.output_height);
    while (library.output_scanline < library.output_height) {
        JSAMPROW row
            = result.pixels.data() + size_t{ 3 } * library.output_width * library.output_scanline;
        jpeg_read_scanlines(&library, &row, 1);
    }
    jpeg_destroy_decompress(&library);
    return result;
}

DecodedJPEG::Pixel DecodedJPEG::at(int x, int y) const
{
    const size_t offset
        = 3 * (static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x));
    return { pixels.at(offset), pixels.at(offset + 1), pixels.at(offset + 2) };
}

DecodedJPEG::Pixel DecodedJPEG::atFraction(double x, double y) const
{
    return at(static_cast<int>(x * width), static_cast<int>(y * height));
}

} // namespace leafcast::service
