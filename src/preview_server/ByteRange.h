// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace leafcast::preview {

struct ByteRange {
    enum class Kind {
        Whole, // none asked for, more than one, or not understood: the whole is the right answer
        Part,
        Unsatisfiable,
    };
    Kind kind = Kind::Whole;
    int64_t first = 0;
    int64_t count = 0; // bytes, of a Part
};

/// Reads a Range field (RFC 9110, 14.1.2) against a file of the given size in bytes.
ByteRange parseByteRange(std::string_view field, int64_t size);

} // namespace leafcast::preview
