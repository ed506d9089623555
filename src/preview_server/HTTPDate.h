// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace leafcast::preview {

/// As in "Sun, 06 Nov 1994 08:49:37 GMT" (RFC 9110, 5.6.7).
std::string httpDate(time_t time);

/// None for a text of another form; the two obsolete forms count as such.
std::optional<time_t> parseHTTPDate(std::string_view text);

} // namespace leafcast::preview
