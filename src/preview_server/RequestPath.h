// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace leafcast::preview {

/// The names on the way from the served folder to what is asked for, decoded. None of them is
/// empty, starts with a dot, or holds a slash or a null byte.
struct RequestPath {
    std::vector<std::string> names; // none for the folder itself
    bool endsWithSlash = false;

    /// As a link from the root of the server to this as a folder: encoded, with a slash at its end.
    std::string folderLink() const;
};

enum class PathProblem {
    Malformed, // no path, or a broken encoding
    Hidden, // leads out of the folder or at a hidden file
};

/// Reads the path of a request target such as "/files/page/1.jpg?x#y".
std::optional<RequestPath> parseRequestPath(std::string_view target, PathProblem& problem);

} // namespace leafcast::preview
