// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/Reply.h"
#include "preview_server/ServedFolder.h"

namespace leafcast::preview {

struct Validators;

using Request = boost::beast::http::request<boost::beast::http::empty_body>;

/// Answers requests with files of a folder: what may be asked, by whom, and in which form it goes
/// out. Safe to use from several threads.
class FilePolicy {
public:
    /// The folder outlives this.
    explicit FilePolicy(const ServedFolder& folder)
        : iFolder(folder)
    {
    }

    Reply answer(const Request& request);

private:
    Reply answerAnyMethod(const Request& request);
    Reply answerPath(const Request& request, std::string_view target);
    Reply answerFile(const Request& request, ServedFile& file);

    const ServedFolder& iFolder;
    GzipCache iGzipCache;
};

} // namespace leafcast::preview
