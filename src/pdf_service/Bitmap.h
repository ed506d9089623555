// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace leafcast::service {

/// The pixels of a drawn page, 8 bits a component, rows without padding: grey or RGB. The memory is
/// kept from page to page.
struct Bitmap {
    int width = 0;
    int height = 0;
    int components = 3; // 1 or 3
    std::vector<unsigned char> pixels{};

    size_t stride() const { return static_cast<size_t>(width) * static_cast<size_t>(components); }
    size_t bytes() const { return stride() * static_cast<size_t>(height); }
    const unsigned char* row(int y) const
    {
        return pixels.data() + stride() * static_cast<size_t>(y);
    }
};

} // namespace leafcast::service
