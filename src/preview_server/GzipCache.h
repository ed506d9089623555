// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/ServedFolder.h"

#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace leafcast::preview {

using SharedText = std::shared_ptr<const std::string>;

/// Files as gzip, kept as long as they are the ones asked for last and small enough together. Safe
/// to use from several threads.
class GzipCache {
public:
    /// The whole file compressed; null when it can't be read, is too large to be compressed while
    /// somebody waits or to be kept, or nothing is saved.
    SharedText compressed(const ServedFile& file);

private:
    struct Entry {
        std::string version;
        SharedText bytes; // null for a file that is better sent as it is
    };

    std::optional<SharedText> find(const std::string& version);
    SharedText keep(const std::string& version, SharedText bytes);

    std::mutex iMutex;
    std::list<Entry> iEntries; // the one asked for last is in front
    size_t iBytes = 0;
};

} // namespace leafcast::preview
