// SPDX-License-Identifier: MIT
#include "preview_server/Server.h"

#include "preview_server/Connection.h"

#include <algorithm>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/ip/v6_only.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/strand.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <thread>
#include <unistd.h>

namespace leafcast::preview {

namespace net = boost::asio;
using namespace std::chrono_literals;
using tcp = net::ip::tcp;

namespace {

    constexpr size_t MostConnections = 1024;
    constexpr size_t MostConnectionsOfOneClient = 128;
    constexpr auto ParentLookInterval = 500ms;
    constexpr auto PauseWithoutFiles = 100ms;

    // Enough that one that compresses a large file does not hold up the others.
    unsigned threadCount()
    {
        return std::clamp(std::thread::hardware_concurrency(), 2U, 4U);
    }

    bool isMissingHere(const boost::system::error_code& error)
    {
        return error == net::error::address_family_not_supported
            || error == boost::system::errc::address_not_available;
    }

    net::awaitable<void> serveAdmitted(
        tcp::socket socket, FilePolicy& policy, ConnectionLimits::Admission)
    {
        try {
            co_await serveConnection(std::move(socket), policy);
        } catch (const std::exception&) {
            // The client has gone, or memory is short; the others go on.
        }
    }

} // namespace

Server::Server(const ServedFolder& folder)
    : iPolicy(folder)
    , iLimits(MostConnections, MostConnectionsOfOneClient)
{
}

uint16_t Server::listen(
    const std::vector<net::ip::address>& addresses, uint16_t first, uint16_t last)
{
    for (uint16_t port = first;; ++port) {
        try {
            iAcceptors = openAcceptors(addresses, port);
            return iAcceptors.front().local_endpoint().port();
        } catch (const boost::system::system_error& error) {
            if (error.code() != net::error::address_in_use || port == last)
                throw std::runtime_error("it can't listen at port " + std::to_string(port) + ": "
                    + error.code().message());
        }
    }
}

std::vector<tcp::acceptor> Server::openAcceptors(
    const std::vector<net::ip::address>& addresses, uint16_t port)
{
    std::vector<Acceptor> acceptors;
    for (const net::ip::address& address : addresses) {
        Acceptor acceptor(net::make_strand(iContext));
        boost::system::error_code error;
        acceptor.open(address.is_v6() ? tcp::v6() : tcp::v4(), error);
        if (!error) {
            acceptor.set_option(net::socket_base::reuse_address(true));
            if (address.is_v6())
                acceptor.set_option(net::ip::v6_only(true));
            acceptor.bind({ address, port }, error);
        }
        if (!error)
            acceptor.listen(net::socket_base::max_listen_connections, error);
        if (error && (!isMissingHere(error) || addresses.size() == 1))
            throw boost::system::system_error(error);
        if (!error)
            acceptors.push_back(std::move(acceptor));
    }
    if (acceptors.empty())
        throw boost::system::system_error(net::error::address_family_not_supported);
    return acceptors;
}

void Server::run()
{
    net::signal_set signals(iContext, SIGINT, SIGTERM, SIGHUP);
    signals.async_wait([this](const boost::system::error_code&, int) { iContext.stop(); });
    for (Acceptor& acceptor : iAcceptors)
        net::co_spawn(acceptor.get_executor(), acceptConnections(acceptor), net::detached);
    net::co_spawn(iContext, endWithParent(), net::detached);

    std::vector<std::jthread> helpers(threadCount() - 1);
    for (std::jthread& helper : helpers)
        helper = std::jthread([this] { iContext.run(); });
    iContext.run();
}

net::awaitable<void> Server::acceptConnections(Acceptor& acceptor)
{
    net::steady_timer pause(acceptor.get_executor());
    for (;;) {
        boost::system::error_code error;
        tcp::socket socket = co_await acceptor.async_accept(
            net::make_strand(iContext), net::redirect_error(net::use_awaitable, error));
        if (error) {
            pause.expires_after(PauseWithoutFiles);
            co_await pause.async_wait(net::use_awaitable);
            continue;
        }
        const tcp::endpoint client = socket.remote_endpoint(error);
        if (error)
            continue;
        if (auto admission = iLimits.admit(client.address())) {
            const auto executor = socket.get_executor();
            net::co_spawn(executor, serveAdmitted(std::move(socket), iPolicy, std::move(admission)),
                net::detached);
        }
    }
}

net::awaitable<void> Server::endWithParent()
{
    const pid_t parent = getppid();
    net::steady_timer timer(iContext);
    while (getppid() == parent) {
        timer.expires_after(ParentLookInterval);
        co_await timer.async_wait(net::use_awaitable);
    }
    iContext.stop();
}

} // namespace leafcast::preview
