// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace leafcast::preview {

/// The media type (RFC 6838) of a file, by its extension in any case.
std::string_view mediaType(std::string_view fileName);

/// Whether compressing files of this type saves anything worth having.
bool isCompressible(std::string_view mediaType);

} // namespace leafcast::preview
