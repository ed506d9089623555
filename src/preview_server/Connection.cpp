// SPDX-License-Identifier: MIT
#include "preview_server/Connection.h"

#include <algorithm>
#include <array>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/serializer.hpp>
#include <netinet/tcp.h>
#include <sys/sendfile.h>

namespace leafcast::preview {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;
using net::ip::tcp;
using namespace std::chrono_literals;

namespace {

    constexpr auto IdleTime = 60s;
    constexpr auto HeaderTime = 10s; // for a whole header, however slowly its bytes come
    constexpr auto StallTime = 30s; // without any byte taken
    constexpr auto FarewellTime = 2s;

    constexpr size_t MostHeaderBytes = size_t{ 16 } << 10;
    constexpr size_t ReadSize = 1024; // a browser's header fits
    constexpr size_t MostFarewellBytes = size_t{ 4 } << 20;
    constexpr int64_t MostBytesAtOnce = int64_t{ 1 }
        << 20; // then other connections have their turn

    using Parser = http::request_parser<http::empty_body>;

    struct Client {
        Client(tcp::socket connected, ConnectionTimes& times)
            : socket(std::move(connected))
            , time(times, socket)
        {
        }

        tcp::socket socket;
        ConnectionTimes::Time time;
        beast::flat_buffer buffer{ MostHeaderBytes }; // read and not yet parsed
    };

    net::awaitable<void> waitForRequest(Client& client)
    {
        if (client.buffer.size() > 0) // sent together with the one before
            co_return;
        client.time.expireAfter(IdleTime);
        client.buffer.commit(co_await client.socket.async_read_some(
            client.buffer.prepare(ReadSize), net::use_awaitable));
    }

    // Beast's own reading limits what it holds, not what it has read: fields that come one by one
    // would pass without end.
    net::awaitable<void> readHeader(Client& client, Parser& parser, beast::error_code& error)
    {
        client.time.expireAfter(HeaderTime);
        for (size_t parsed = 0;;) {
            const size_t count = parser.put(client.buffer.data(), error);
            client.buffer.consume(count);
            parsed += count;
            if (error != http::error::need_more)
                co_return;
            const size_t taken = parsed + client.buffer.size();
            if (taken >= MostHeaderBytes) {
                error = http::error::header_limit;
                co_return;
            }
            client.buffer.commit(co_await client.socket.async_read_some(
                client.buffer.prepare(std::min(MostHeaderBytes - taken, ReadSize)),
                net::redirect_error(net::use_awaitable, error)));
            if (error)
                co_return;
        }
    }

    bool isClientsFault(const beast::error_code& error)
    {
        static const beast::error_code anyHTTP = http::make_error_code(http::error::bad_method);
        return error.category() == anyHTTP.category();
    }

    Reply refusalOf(const beast::error_code& error)
    {
        Reply reply = refusal(error == http::error::header_limit
                ? http::status::request_header_fields_too_large
                : http::status::bad_request);
        reply.closesConnection = true;
        return reply;
    }

    // sendfile() takes no time-out, so what waits for the client is a short write in between.
    net::awaitable<void> sendFile(Client& client, const Reply& reply)
    {
        const int file = reply.file.get();
        off_t position = reply.first;
        const off_t end = reply.first + reply.count;
        std::array<char, 4096> chunk;
        while (position < end) {
            const auto most = static_cast<size_t>(std::min<off_t>(end - position, MostBytesAtOnce));
            sendfile(client.socket.native_handle(), file, &position, most);
            if (position == end)
                break;
            const auto rest = std::min(static_cast<size_t>(end - position), chunk.size());
            const ssize_t count = pread(file, chunk.data(), rest, position);
            if (count <= 0) // cut off meanwhile: the length that was promised can't be kept
                throw boost::system::system_error(net::error::connection_aborted);
            client.time.expireAfter(StallTime);
            position += static_cast<off_t>(co_await client.socket.async_write_some(
                net::buffer(chunk.data(), static_cast<size_t>(count)), net::use_awaitable));
        }
    }

    std::string textOf(Reply& reply)
    {
        http::response_serializer<http::empty_body> serializer(reply.head);
        std::string text;
        beast::error_code none;
        serializer.next(none, [&](beast::error_code&, const auto& buffers) {
            text = beast::buffers_to_string(buffers);
        });
        return text;
    }

    net::awaitable<void> sendText(Client& client, const std::string& text)
    {
        for (size_t position = 0; position < text.size();) {
            client.time.expireAfter(StallTime);
            position += co_await client.socket.async_send(
                net::buffer(text) + position, net::use_awaitable);
        }
    }

    // While it is corked a socket sends full packets only: the head goes out with the body.
    void setCorked(Client& client, int corked)
    {
        setsockopt(client.socket.native_handle(), IPPROTO_TCP, TCP_CORK, &corked, sizeof corked);
    }

    net::awaitable<void> send(Client& client, Reply& reply)
    {
        setCorked(client, 1);
        co_await sendText(client, textOf(reply));
        if (reply.text)
            co_await sendText(client, *reply.text);
        if (reply.count > 0)
            co_await sendFile(client, reply);
        setCorked(client, 0);
    }

    // Closing at once, with bytes of the client unread, would take our last answer away from it.
    net::awaitable<void> sayFarewell(Client& client)
    {
        beast::error_code ended;
        client.socket.shutdown(tcp::socket::shutdown_send, ended);
        client.time.expireAfter(FarewellTime);
        for (size_t taken = 0; !ended && taken < MostFarewellBytes;) {
            client.buffer.clear();
            taken += co_await client.socket.async_read_some(
                client.buffer.prepare(4096), net::redirect_error(net::use_awaitable, ended));
        }
    }

} // namespace

net::awaitable<void> serveConnection(tcp::socket socket, FilePolicy& policy, ConnectionTimes& times)
{
    const net::ip::address reachedAt = socket.local_endpoint().address();
    Client client(std::move(socket), times);
    for (bool keepsAlive = true; keepsAlive;) {
        co_await waitForRequest(client);
        Parser parser;
        parser.header_limit(MostHeaderBytes);
        beast::error_code error;
        co_await readHeader(client, parser, error);
        if (error && !isClientsFault(error))
            co_return;
        Reply reply = error ? refusalOf(error) : policy.answer(parser.get(), reachedAt);
        keepsAlive = !reply.closesConnection && parser.get().keep_alive();
        reply.head.version(parser.get().version() == 10 ? 10 : 11);
        reply.head.keep_alive(keepsAlive);
        co_await send(client, reply);
    }
    co_await sayFarewell(client);
}

} // namespace leafcast::preview
