// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/FileDescriptor.h"
#include "preview_server/RequestPath.h"

#include <cstdint>
#include <string>
#include <sys/stat.h>

namespace leafcast::preview {

/// A regular file, opened for reading.
struct ServedFile {
    FileDescriptor descriptor;
    std::string name;
    int64_t size = 0; // bytes
    timespec modified{};
    std::string version; // differs when the content does, as an entity tag without quotes
};

struct Lookup {
    enum class Result { File, Folder, Nothing, TooManyFiles };
    Result result = Result::Nothing;
    ServedFile file; // of a File
};

/// The folder that is served. Nothing but regular files below it can be reached: paths are resolved
/// from the opened folder, and links are never followed. When it has been removed, as a package is
/// before it is published again, the folder that was made anew in its place is served.
class ServedFolder {
public:
    /// Throws std::system_error when it can't be opened.
    explicit ServedFolder(const char* path);

    /// A folder gives its "index.html" when the path ends with a slash. The root without one gives
    /// its page, when it holds exactly one.
    Lookup find(const RequestPath& path) const;

private:
    FileDescriptor openSuccessor() const;
    static FileDescriptor openBeneath(int root, const std::vector<std::string>& names);
    static FileDescriptor openStepByStep(int root, const std::vector<std::string>& names);
    static std::string pageOf(int root);

    FileDescriptor iRoot;
    std::string iPath;
};

} // namespace leafcast::preview
