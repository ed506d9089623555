// SPDX-License-Identifier: MIT
#include "preview_server/Connection.h"

#include <algorithm>
#include <array>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <sys/sendfile.h>

namespace leafcast::preview {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;
using namespace std::chrono_literals;

namespace {

    constexpr auto IdleTime = 60s;
    constexpr auto HeaderTime = 10s; // for a whole header, however slowly its bytes come
    constexpr auto StallTime = 30s; // without any byte taken
    constexpr auto FarewellTime = 2s;

    constexpr size_t MostHeaderBytes = size_t{ 16 } << 10;
    constexpr size_t MostFarewellBytes = size_t{ 64 } << 10;
    constexpr int64_t MostBytesAtOnce = int64_t{ 1 }
        << 20; // then other connections have their turn

    using Parser = http::request_parser<http::empty_body>;

    net::awaitable<void> waitForRequest(beast::tcp_stream& stream, beast::flat_buffer& buffer)
    {
        if (buffer.size() > 0) // sent together with the one before
            co_return;
        stream.expires_after(IdleTime);
        buffer.commit(co_await stream.async_read_some(buffer.prepare(1024), net::use_awaitable));
    }

    bool isClientsFault(const beast::error_code& error)
    {
        static const beast::error_code anyHTTP = http::make_error_code(http::error::bad_method);
        return error.category() == anyHTTP.category() && error != http::error::end_of_stream
            && error != http::error::partial_message;
    }

    Reply refusalOf(const beast::error_code& error)
    {
        const bool tooLong
            = error == http::error::header_limit || error == http::error::buffer_overflow;
        Reply reply = refusal(
            tooLong ? http::status::request_header_fields_too_large : http::status::bad_request);
        reply.closesConnection = true;
        return reply;
    }

    // sendfile() takes no time-out, so what waits for the client is a short write in between.
    net::awaitable<void> sendFile(beast::tcp_stream& stream, const Reply& reply)
    {
        const int file = reply.file.get();
        off_t position = reply.first;
        const off_t end = reply.first + reply.count;
        std::array<char, 4096> chunk;
        while (position < end) {
            const auto most = static_cast<size_t>(std::min<off_t>(end - position, MostBytesAtOnce));
            sendfile(stream.socket().native_handle(), file, &position, most);
            if (position == end)
                break;
            const auto rest = std::min(static_cast<size_t>(end - position), chunk.size());
            const ssize_t count = pread(file, chunk.data(), rest, position);
            if (count <= 0) // cut off meanwhile: the length that was promised can't be kept
                throw boost::system::system_error(net::error::connection_aborted);
            stream.expires_after(StallTime);
            position += static_cast<off_t>(co_await stream.async_write_some(
                net::buffer(chunk.data(), static_cast<size_t>(count)), net::use_awaitable));
        }
    }

    net::awaitable<void> send(beast::tcp_stream& stream, Reply& reply)
    {
        stream.expires_after(StallTime);
        http::response_serializer<http::empty_body> serializer(reply.head);
        co_await http::async_write_header(stream, serializer, net::use_awaitable);
        if (reply.text)
            co_await net::async_write(stream, net::buffer(*reply.text), net::use_awaitable);
        if (reply.file)
            co_await sendFile(stream, reply);
    }

    // Closing at once, with bytes of the client unread, would take our last answer away from it.
    net::awaitable<void> sayFarewell(beast::tcp_stream& stream, beast::flat_buffer& buffer)
    {
        beast::error_code ended;
        stream.socket().shutdown(net::ip::tcp::socket::shutdown_send, ended);
        stream.expires_after(FarewellTime);
        for (size_t taken = 0; !ended && taken < MostFarewellBytes;) {
            buffer.clear();
            taken += co_await stream.async_read_some(
                buffer.prepare(4096), net::redirect_error(net::use_awaitable, ended));
        }
    }

} // namespace

net::awaitable<void> serveConnection(net::ip::tcp::socket socket, FilePolicy& policy)
{
    socket.set_option(net::ip::tcp::no_delay(true));
    beast::tcp_stream stream(std::move(socket));
    beast::flat_buffer buffer(MostHeaderBytes);
    for (bool keepsAlive = true; keepsAlive;) {
        co_await waitForRequest(stream, buffer);
        stream.expires_after(HeaderTime);
        Parser parser;
        parser.header_limit(MostHeaderBytes);
        beast::error_code error;
        co_await http::async_read_header(
            stream, buffer, parser, net::redirect_error(net::use_awaitable, error));
        if (error && !isClientsFault(error))
            co_return;
        Reply reply = error ? refusalOf(error) : policy.answer(parser.get());
        keepsAlive = !reply.closesConnection && parser.get().keep_alive();
        reply.head.version(parser.get().version() == 10 ? 10 : 11);
        reply.head.keep_alive(keepsAlive);
        co_await send(stream, reply);
    }
    co_await sayFarewell(stream, buffer);
}

} // namespace leafcast::preview
