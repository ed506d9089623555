// SPDX-License-Identifier: MIT
#include "preview_server/MediaType.h"

#include <algorithm>
#include <boost/beast/core/string.hpp>
#include <iterator>

namespace leafcast::preview {

namespace {

    struct Entry {
        std::string_view extension;
        std::string_view type;
    };

    constexpr Entry Types[] = {
        { "avif", "image/avif" },
        { "bmp", "image/bmp" },
        { "css", "text/css; charset=utf-8" },
        { "gif", "image/gif" },
        { "htm", "text/html; charset=utf-8" },
        { "html", "text/html; charset=utf-8" },
        { "ico", "image/vnd.microsoft.icon" },
        { "jpeg", "image/jpeg" },
        { "jpg", "image/jpeg" },
        { "js", "text/javascript; charset=utf-8" },
        { "json", "application/json" },
        { "m4a", "audio/mp4" },
        { "mjs", "text/javascript; charset=utf-8" },
        { "mp3", "audio/mpeg" },
        { "mp4", "video/mp4" },
        { "ogg", "audio/ogg" },
        { "otf", "font/otf" },
        { "pdf", "application/pdf" },
        { "png", "image/png" },
        { "svg", "image/svg+xml" },
        { "ttf", "font/ttf" },
        { "txt", "text/plain; charset=utf-8" },
        { "wav", "audio/wav" },
        { "webm", "video/webm" },
        { "webmanifest", "application/manifest+json" },
        { "webp", "image/webp" },
        { "woff", "font/woff" },
        { "woff2", "font/woff2" },
        { "xml", "application/xml" },
        { "zip", "application/zip" },
    };

} // namespace

std::string_view mediaType(std::string_view fileName)
{
    const size_t dot = fileName.rfind('.');
    const std::string_view extension
        = dot == std::string_view::npos ? std::string_view() : fileName.substr(dot + 1);
    const auto* found = std::find_if(std::begin(Types), std::end(Types), [&](const Entry& entry) {
        return boost::beast::iequals({ entry.extension.data(), entry.extension.size() },
            { extension.data(), extension.size() });
    });
    return found == std::end(Types) ? "application/octet-stream" : found->type;
}

bool isCompressible(std::string_view mediaType)
{
    for (const std::string_view start : { "text/", "application/json", "application/xml",
             "application/manifest", "image/svg", "image/bmp" }) {
        if (mediaType.starts_with(start))
            return true;
    }
    return false;
}

} // namespace leafcast::preview
