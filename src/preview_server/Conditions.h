// SPDX-License-Identifier: MIT
#pragma once

#include <boost/beast/http/fields.hpp>
#include <ctime>
#include <string_view>

namespace leafcast::preview {

/// What a client may compare with what it has.
struct Validators {
    std::string_view entityTag; // with its quotes, strong
    time_t modified = 0;
};

/// If-None-Match, else If-Modified-Since (RFC 9110, 13.2.2).
bool isNotModified(const boost::beast::http::fields& request, const Validators& validators);

/// Whether a Range field counts: there is no If-Range field or it names exactly this version.
bool allowsRange(const boost::beast::http::fields& request, const Validators& validators);

} // namespace leafcast::preview
