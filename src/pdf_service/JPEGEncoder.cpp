// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/JPEGEncoder.h"

#include "pdf_service/FineColour.h"
#include "pdf_service/HuffmanStatistics.h"
#include "pdf_service/ServiceError.h"

#include <algorithm>
#include <csetjmp>
#include <cstring>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    // Two passes keep every coefficient in memory: two bytes a sample.
    constexpr size_t LargestTwoPassBitmap = size_t{ 128 } << 20U;
    constexpr size_t InitialOutput = size_t{ 1 } << 20U;

    // The library's error exit is a jump; it must not pass over objects with destructors.
    struct Compressor {
        jpeg_compress_struct jpeg{};
        jpeg_error_mgr errors{};
        jpeg_destination_mgr destination{};
        HuffmanStatistics statistics;
        jmp_buf failed{};
        std::vector<unsigned char>* output = nullptr;
        bool outOfMemory = false;
    };

    Compressor& self(j_compress_ptr library)
    {
        return *static_cast<Compressor*>(library->client_data);
    }

    void onError(j_common_ptr library)
    {
        longjmp(static_cast<Compressor*>(library->client_data)->failed, 1);
    }

    void onMessage(j_common_ptr) { }

    void offerSpace(Compressor& compressor, size_t used)
    {
        std::vector<unsigned char>& output = *compressor.output;
        compressor.destination.next_output_byte = output.data() + used;
        compressor.destination.free_in_buffer = output.size() - used;
    }

    void start(j_compress_ptr library)
    {
        offerSpace(self(library), 0);
    }

    boolean grow(j_compress_ptr library)
    {
        Compressor& compressor = self(library);
        const size_t used = compressor.output->size();
        try {
            compressor.output->resize(2 * used);
        } catch (const std::bad_alloc&) {
            compressor.outOfMemory = true;
        }
        if (compressor.outOfMemory)
            longjmp(compressor.failed, 1);
        offerSpace(compressor, used);
        return TRUE;
    }

    void finish(j_compress_ptr) { }

    void configure(Compressor& compressor, const Bitmap& bitmap, const JPEGOptions& options)
    {
        jpeg_compress_struct& library = compressor.jpeg;
        library.image_width = static_cast<JDIMENSION>(bitmap.width);
        library.image_height = static_cast<JDIMENSION>(bitmap.height);
        library.input_components = bitmap.components;
        library.in_color_space = bitmap.components == 1 ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_set_defaults(&library);
        jpeg_set_quality(&library, options.quality, TRUE);
        library.dct_method = JDCT_ISLOW;
        library.optimize_coding = bitmap.bytes() <= LargestTwoPassBitmap ? TRUE : FALSE;
        library.density_unit = 1; // dots per inch
        library.X_density = 72;
        library.Y_density = 72;
        const int sampling = options.chroma == Chroma::Halved && bitmap.components == 3 ? 2 : 1;
        library.comp_info[0].h_samp_factor = sampling;
        library.comp_info[0].v_samp_factor = sampling;
    }

    void connect(Compressor& compressor)
    {
        compressor.jpeg.err = jpeg_std_error(&compressor.errors);
        compressor.errors.error_exit = onError;
        compressor.errors.output_message = onMessage;
        compressor.jpeg.client_data = &compressor;
        jpeg_create_compress(&compressor.jpeg);
        compressor.destination.init_destination = start;
        compressor.destination.empty_output_buffer = grow;
        compressor.destination.term_destination = finish;
        compressor.jpeg.dest = &compressor.destination;
    }

    void writeRows(jpeg_compress_struct& library, const Bitmap& bitmap)
    {
        std::array<JSAMPROW, 64> rows{};
        const auto first = static_cast<int>(library.next_scanline);
        const int count = std::min(bitmap.height - first, static_cast<int>(rows.size()));
        for (int i = 0; i < count; ++i) // the library only reads them
            rows[static_cast<size_t>(i)] = const_cast<JSAMPROW>(bitmap.row(first + i));
        jpeg_write_scanlines(&library, rows.data(), static_cast<JDIMENSION>(count));
    }

    // The library's own way with grey takes the bytes one by one, a tenth of the encoding time.
    void copyGreyRows(j_compress_ptr library, JSAMPARRAY input, JSAMPIMAGE output,
        JDIMENSION firstOutputRow, int rows)
    {
        for (int i = 0; i < rows; ++i)
            std::memcpy(output[0][firstOutputRow + static_cast<JDIMENSION>(i)], input[i],
                library->image_width);
    }

    bool compress(Compressor& compressor, const Bitmap& bitmap, const JPEGOptions& options)
    {
        if (setjmp(compressor.failed) != 0)
            return false;
        connect(compressor);
        configure(compressor, bitmap, options);
        jpeg_start_compress(&compressor.jpeg, TRUE);
        if (compressor.jpeg.optimize_coding)
            compressor.statistics.replaceThoseOf(compressor.jpeg);
        if (bitmap.components == 1)
            compressor.jpeg.cconvert->color_convert = copyGreyRows;
        while (compressor.jpeg.next_scanline < compressor.jpeg.image_height)
            writeRows(compressor.jpeg, bitmap);
        jpeg_finish_compress(&compressor.jpeg);
        return true;
    }

} // namespace

void encodeJPEG(
    const Bitmap& bitmap, const JPEGOptions& options, std::vector<unsigned char>& output)
{
    JPEGOptions chosen = options;
    if (chosen.chroma == Chroma::Halved && hasFineColour(bitmap))
        chosen.chroma = Chroma::Full;
    output.resize(std::max(output.capacity(), InitialOutput));
    Compressor compressor;
    compressor.output = &output;
    const bool done = compress(compressor, bitmap, chosen);
    const size_t unused = compressor.destination.free_in_buffer;
    jpeg_destroy_compress(&compressor.jpeg);
    if (!done)
        throw ServiceError(ErrorCode::Memory, u"the picture needs too much memory"_s);
    output.resize(output.size() - unused);
}

} // namespace leafcast::service
