// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/Reply.h"
#include "preview_server/ServedFolder.h"

#include <boost/asio/ip/address.hpp>

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

    /// reachedAt: the address of this machine that the request came to.
    Reply answer(const Request& request, const boost::asio::ip::address& reachedAt);

private:
    Reply answerAnyMethod(const Request& request, const boost::asio::ip::address& reachedAt);
    Reply answerPath(const Request& request, std::string_view target);
    Reply answerFile(const Request& request, ServedFile& file);

    const ServedFolder& iFolder;
    GzipCache iGzipCache;
};

} // namespace leafcast::preview
