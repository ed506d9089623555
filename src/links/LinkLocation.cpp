// SPDX-License-Identifier: MIT
#include "links/LinkLocation.h"

#include <array>
#include <charconv>

namespace leafcast {

namespace {

    struct Rect {
        float x = 0;
        float y = 0;
        float width = 0;
        float height = 0;
    };

    Rect singlePrecision(const PDFRect& rect)
    {
        return { static_cast<float>(rect.x), static_cast<float>(rect.y),
            static_cast<float>(rect.width), static_cast<float>(rect.height) };
    }

    Rect turned(const Rect& r, int rotation)
    {
        switch (rotation) {
        case 0:
            return { r.x, r.y + r.height, r.width, r.height };
        case 90:
            return { r.x + r.width, r.y + r.height, r.height, r.width };
        case 180:
            return { r.x + r.width, r.y, r.width, r.height };
        case 270:
            return { r.x, r.y, r.height, r.width };
        default:
            return {};
        }
    }

} // namespace

LinkLocation LinkLocation::of(const PDFRect& bounds, const PDFRect& cropBox, int rotation)
{
    const Rect page = singlePrecision(cropBox);
    const Rect link = turned(singlePrecision(bounds), rotation);
    return { link.x / page.width, 1.0F - link.y / page.height, link.width / page.width,
        link.height / page.height };
}

QString LinkLocation::text(float fraction)
{
    constexpr int decimals = 6;
    std::array<char, 64> buffer{}; // the largest float has 39 digits before the point
    const auto end = std::to_chars(
        buffer.data(), buffer.data() + buffer.size(), fraction, std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

} // namespace leafcast
