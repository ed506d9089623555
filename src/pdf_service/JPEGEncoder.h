// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"

#include <vector>

namespace leafcast::service {

enum class Chroma {
    Full, // 4:4:4
    Halved // 4:2:0, except for a picture with fine coloured detail
};

struct JPEGOptions {
    int quality = 30; // libjpeg's scale, 1 to 100
    Chroma chroma = Chroma::Halved;
};

/// Baseline JPEG: accurate DCT, optimised Huffman tables, a density of 72 dots per inch, so that
/// the picture's size in points is its size in pixels. The output's memory is reused. Throws
/// ServiceError.
void encodeJPEG(
    const Bitmap& bitmap, const JPEGOptions& options, std::vector<unsigned char>& output);

} // namespace leafcast::service
