// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#define JPEG_INTERNALS // for jpeg_entropy_encoder; both headers above come before jpeglib.h
#include <jpeglib.h>

namespace leafcast::service {

/// Counts the symbols of a picture's coefficients, for optimised Huffman tables, in place of the
/// library's own count: that one looks at all 64 coefficients of each block one by one and takes a
/// third of the encoding time of a page of text, whose blocks are mostly empty. The tables, and so
/// the bytes of the picture, are the same.
class HuffmanStatistics : private jpeg_entropy_encoder {
public:
    /// Between jpeg_start_compress() and the first row of a picture with optimize_coding set. The
    /// object must live until the picture is finished.
    void replaceThoseOf(jpeg_compress_struct& library);

private:
    using Counts = std::array<long, 257>; // the last is for jpeg_gen_optimal_table()

    static HuffmanStatistics& of(j_compress_ptr library);
    static void startWriting(j_compress_ptr library, boolean gather);
    static boolean countUnit(j_compress_ptr library, JBLOCKROW* blocks);
    static void makeTables(j_compress_ptr library);

    void countBlock(const JCOEF* block, int component, const jpeg_component_info& info);

    jpeg_entropy_encoder* iReplaced = nullptr;
    std::array<int, MAX_COMPS_IN_SCAN> iLastDC{};
    std::array<Counts, NUM_HUFF_TBLS> iDC{};
    std::array<Counts, NUM_HUFF_TBLS> iAC{};
};

} // namespace leafcast::service
