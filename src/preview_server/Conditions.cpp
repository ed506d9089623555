// SPDX-License-Identifier: MIT
#include "preview_server/Conditions.h"

#include "preview_server/HTTPDate.h"

#include <boost/beast/http/rfc7230.hpp>

namespace leafcast::preview {

namespace http = boost::beast::http;

namespace {

    std::string_view fieldOf(const http::fields& request, http::field name)
    {
        const auto value = request[name];
        return { value.data(), value.size() };
    }

    // Weak comparison (RFC 9110, 8.8.3.2).
    bool namesTag(std::string_view list, std::string_view tag)
    {
        while (!list.empty()) {
            const size_t start = list.find_first_not_of(" \t,");
            if (start == std::string_view::npos)
                return false;
            list.remove_prefix(start);
            if (list.starts_with("W/"))
                list.remove_prefix(2);
            // Entity tags may hold commas, so they end at their quote.
            const size_t quote = list.starts_with('"') ? list.find('"', 1) : std::string_view::npos;
            const size_t end = quote == std::string_view::npos ? list.find(',') : quote + 1;
            const std::string_view candidate = list.substr(0, end);
            if (candidate == tag || candidate == "*")
                return true;
            list.remove_prefix(candidate.size());
        }
        return false;
    }

} // namespace

bool isNotModified(const http::fields& request, const Validators& validators)
{
    if (request.count(http::field::if_none_match) > 0)
        return namesTag(fieldOf(request, http::field::if_none_match), validators.entityTag);
    const auto since = parseHTTPDate(fieldOf(request, http::field::if_modified_since));
    return since && validators.modified <= *since;
}

bool allowsRange(const http::fields& request, const Validators& validators)
{
    if (request.count(http::field::if_range) == 0)
        return true;
    const std::string_view version = fieldOf(request, http::field::if_range);
    return version == validators.entityTag || parseHTTPDate(version) == validators.modified;
}

} // namespace leafcast::preview
