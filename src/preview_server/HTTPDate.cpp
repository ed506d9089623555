// SPDX-License-Identifier: MIT
#include "preview_server/HTTPDate.h"

namespace leafcast::preview {

namespace {
    // The program never sets a locale, so names of days and months are the English ones.
    constexpr const char* Format = "%a, %d %b %Y %H:%M:%S GMT";
} // namespace

std::string httpDate(time_t time)
{
    tm parts{};
    char text[40];
    return { text, strftime(text, sizeof text, Format, gmtime_r(&time, &parts)) };
}

std::optional<time_t> parseHTTPDate(std::string_view text)
{
    tm parts{};
    const std::string whole(text);
    const char* end = strptime(whole.c_str(), Format, &parts);
    if (end == nullptr || *end != '\0')
        return std::nullopt;
    return timegm(&parts);
}

} // namespace leafcast::preview
