// SPDX-License-Identifier: MIT
#include "preview_server/RequestPath.h"

#include <cctype>
#include <charconv>

namespace leafcast::preview {

namespace {

    // None for a broken encoding.
    std::optional<std::string> percentDecoded(std::string_view text)
    {
        std::string decoded;
        for (size_t i = 0; i < text.size(); ++i) {
            if (text[i] != '%') {
                decoded += text[i];
                continue;
            }
            unsigned value = 0;
            const char* digits = text.data() + i + 1;
            if (i + 2 >= text.size()
                || std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2)
                return std::nullopt;
            decoded += static_cast<char>(value);
            i += 2;
        }
        return decoded;
    }

    void appendPercentEncoded(std::string& link, std::string_view name)
    {
        constexpr std::string_view hex = "0123456789ABCDEF";
        for (const char letter : name) {
            const auto byte = static_cast<unsigned char>(letter);
            if (byte < 0x80
                && (std::isalnum(byte) != 0
                    || std::string_view("-._~").find(letter) != std::string_view::npos)) {
                link += letter;
                continue;
            }
            link += '%';
            link += hex[byte >> 4U];
            link += hex[byte & 0xFU];
        }
    }

    bool isHidden(std::string_view name)
    {
        return name.starts_with('.') || name.find('/') != std::string_view::npos
            || name.find('\0') != std::string_view::npos;
    }

} // namespace

std::string RequestPath::folderLink() const
{
    std::string link = "/";
    for (const std::string& name : names) {
        appendPercentEncoded(link, name);
        link += '/';
    }
    return link;
}

std::optional<RequestPath> parseRequestPath(std::string_view target, PathProblem& problem)
{
    problem = PathProblem::Malformed;
    if (!target.starts_with('/'))
        return std::nullopt;
    std::string_view rest = target.substr(0, target.find_first_of("?#"));
    RequestPath path{ {}, rest.ends_with('/') };
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const std::string_view encoded = rest.substr(0, rest.find('/'));
        rest.remove_prefix(encoded.size());
        auto name = percentDecoded(encoded);
        if (!name)
            return std::nullopt;
        if (isHidden(*name)) {
            problem = PathProblem::Hidden;
            return std::nullopt;
        }
        if (!name->empty())
            path.names.push_back(std::move(*name));
    }
    return path;
}

} // namespace leafcast::preview
