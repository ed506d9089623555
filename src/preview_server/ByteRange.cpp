// SPDX-License-Identifier: MIT
#include "preview_server/ByteRange.h"

#include <algorithm>
#include <boost/beast/core/string.hpp>
#include <charconv>
#include <limits>
#include <optional>

namespace leafcast::preview {

namespace {

    constexpr std::string_view Unit = "bytes=";

    // Digits only; a number beyond the type's end is its end.
    std::optional<int64_t> parsePosition(std::string_view digits)
    {
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos)
            return std::nullopt;
        int64_t value = std::numeric_limits<int64_t>::max();
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return value;
    }

    ByteRange part(int64_t first, int64_t last, int64_t size)
    {
        if (first >= size)
            return { ByteRange::Kind::Unsatisfiable };
        return { ByteRange::Kind::Part, first, std::min(last, size - 1) - first + 1 };
    }

} // namespace

ByteRange parseByteRange(std::string_view field, int64_t size)
{
    const std::string_view unit = field.substr(0, Unit.size());
    if (!boost::beast::iequals({ unit.data(), unit.size() }, { Unit.data(), Unit.size() }))
        return {};
    const std::string_view range = field.substr(Unit.size());
    const size_t dash = range.find('-');
    if (dash == std::string_view::npos)
        return {};
    const auto first = parsePosition(range.substr(0, dash));
    const auto last = parsePosition(range.substr(dash + 1));
    if (dash == 0) // the last so many bytes
        return last ? part(*last == 0 ? size : std::max(size - *last, int64_t{ 0 }), size - 1, size)
                    : ByteRange();
    const bool open = dash + 1 == range.size();
    if (!first || (!open && (!last || *last < *first)))
        return {};
    return part(*first, open ? size - 1 : *last, size);
}

} // namespace leafcast::preview
