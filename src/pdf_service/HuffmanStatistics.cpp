// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/HuffmanStatistics.h"

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// Exported by the library, but in none of its installed headers.
extern "C" void jpeg_gen_optimal_table(
    j_compress_ptr library, JHUFF_TBL* table, long frequencies[]);

namespace leafcast::service {

namespace {

    using Positions = std::array<unsigned char, DCTSIZE2>;

    // Place of each coefficient in the zigzag order, by its place in the block (ITU-T T.81, A.6).
    Positions zigzagPositions()
    {
        Positions positions{};
        for (unsigned char i = 0; i < DCTSIZE2; ++i)
            positions[static_cast<size_t>(jpeg_natural_order[i])] = i;
        return positions;
    }

    unsigned bitLength(int value)
    {
        return static_cast<unsigned>(std::bit_width(static_cast<unsigned>(std::abs(value))));
    }

    bool allZero(const JCOEF* sixteen)
    {
        std::array<uint64_t, 4> words{};
        std::memcpy(words.data(), sixteen, sizeof words);
        return (words[0] | words[1] | words[2] | words[3]) == 0;
    }

    // A bit for each coefficient that is not zero, in zigzag order.
    uint64_t nonZero(const JCOEF* block)
    {
        static const Positions zigzag = zigzagPositions();
        uint64_t mask = 0;
        for (size_t i = 0; i < DCTSIZE2; i += 16) {
            if (allZero(block + i))
                continue;
            for (size_t k = i; k < i + 16; ++k)
                mask |= static_cast<uint64_t>(block[k] != 0 ? 1 : 0) << zigzag[k];
        }
        return mask;
    }

    JHUFF_TBL* table(j_compress_ptr library, JHUFF_TBL*& slot)
    {
        if (slot == nullptr)
            slot = jpeg_alloc_huff_table(reinterpret_cast<j_common_ptr>(library));
        return slot;
    }

} // namespace

void HuffmanStatistics::replaceThoseOf(jpeg_compress_struct& library)
{
    iReplaced = library.entropy;
    start_pass = startWriting;
    encode_mcu = countUnit;
    finish_pass = makeTables;
    library.entropy = this;
}

HuffmanStatistics& HuffmanStatistics::of(j_compress_ptr library)
{
    return *static_cast<HuffmanStatistics*>(library->entropy);
}

// The second pass, which writes the picture, is the library's own.
void HuffmanStatistics::startWriting(j_compress_ptr library, boolean gather)
{
    library->entropy = of(library).iReplaced;
    library->entropy->start_pass(library, gather);
}

boolean HuffmanStatistics::countUnit(j_compress_ptr library, JBLOCKROW* blocks)
{
    HuffmanStatistics& self = of(library);
    for (int i = 0; i < library->blocks_in_MCU; ++i) {
        const int component = library->MCU_membership[i];
        self.countBlock(*blocks[i], component, *library->cur_comp_info[component]);
    }
    return TRUE;
}

void HuffmanStatistics::countBlock(
    const JCOEF* block, int component, const jpeg_component_info& info)
{
    int& last = iLastDC[static_cast<size_t>(component)];
    ++iDC[static_cast<size_t>(info.dc_tbl_no)][bitLength(block[0] - last)];
    last = block[0];

    Counts& counts = iAC[static_cast<size_t>(info.ac_tbl_no)];
    int previous = 0;
    for (uint64_t left = nonZero(block) & ~uint64_t{ 1 }; left != 0; left &= left - 1) {
        const int position = std::countr_zero(left);
        const auto run = static_cast<unsigned>(position - previous - 1);
        counts[0xF0] += run / 16;
        ++counts[((run % 16) << 4) + bitLength(block[jpeg_natural_order[position]])];
        previous = position;
    }
    if (previous < DCTSIZE2 - 1)
        ++counts[0]; // end of block
}

void HuffmanStatistics::makeTables(j_compress_ptr library)
{
    HuffmanStatistics& self = of(library);
    const int tables = library->comps_in_scan > 1 ? 2 : 1; // luminance, chrominance
    for (int i = 0; i < tables; ++i) {
        const auto n = static_cast<size_t>(i);
        jpeg_gen_optimal_table(
            library, table(library, library->dc_huff_tbl_ptrs[i]), self.iDC[n].data());
        jpeg_gen_optimal_table(
            library, table(library, library->ac_huff_tbl_ptrs[i]), self.iAC[n].data());
    }
}

} // namespace leafcast::service
