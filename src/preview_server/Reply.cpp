// SPDX-License-Identifier: MIT
#include "preview_server/Reply.h"

#include "preview_server/HTTPDate.h"

namespace leafcast::preview {

namespace http = boost::beast::http;

Reply::Reply(http::status status)
{
    head.result(status);
    setField(http::field::date, httpDate(time(nullptr)));
    head.set("X-Content-Type-Options", "nosniff");
    // A stranger's page could read what scripts bring by taking them for its own.
    head.set("Cross-Origin-Resource-Policy", "same-origin");
    head.content_length(0);
}

void Reply::setField(http::field name, std::string_view value)
{
    head.set(name, boost::beast::string_view(value.data(), value.size()));
}

void Reply::setText(SharedText body)
{
    head.content_length(body->size());
    text = std::move(body);
}

void Reply::setFile(FileDescriptor body, int64_t firstByte, int64_t byteCount)
{
    head.content_length(static_cast<uint64_t>(byteCount));
    file = std::move(body);
    first = firstByte;
    count = byteCount;
}

void Reply::dropBody()
{
    text.reset();
    file = {};
    count = 0;
}

Reply refusal(http::status status)
{
    Reply reply(status);
    reply.setField(http::field::content_type, "text/plain; charset=utf-8");
    reply.setField(http::field::cache_control, "no-store");
    reply.setText(
        std::make_shared<const std::string>(http::obsolete_reason(status).to_string() + '\n'));
    return reply;
}

} // namespace leafcast::preview
