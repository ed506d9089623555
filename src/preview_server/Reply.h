// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/GzipCache.h"

#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <string_view>

namespace leafcast::preview {

/// An answer: its head, and where its body comes from.
struct Reply {
    /// With the fields that every answer has, and no body.
    explicit Reply(boost::beast::http::status status);

    void setField(boost::beast::http::field name, std::string_view value);
    void setText(SharedText body);
    void setFile(FileDescriptor body, int64_t firstByte, int64_t byteCount);
    /// The length in the head stays, as HEAD wants it.
    void dropBody();

    boost::beast::http::response<boost::beast::http::empty_body> head;
    SharedText text; // the body, or
    FileDescriptor file; // the file that the body is a part of
    int64_t first = 0; // byte of the file
    int64_t count = 0; // bytes of the file
    bool closesConnection = false;
};

/// An answer whose text is the name of its status.
Reply refusal(boost::beast::http::status status);

} // namespace leafcast::preview
