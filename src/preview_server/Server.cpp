// SPDX-License-Identifier: MIT
#include "preview_server/Server.h"

#include "preview_server/Connection.h"

#include <algorithm>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/ip/v6_only.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <csignal>
#include <fcntl.h>
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
        tcp::socket socket, FilePolicy& policy, ConnectionTimes& times, ConnectionLimits::Admission)
    {
        try {
            co_await serveConnection(std::move(socket), policy, times);
        } catch (const std::exception&) {
            // The client has gone, or memory is short; the others go on.
        }
    }

} // namespace

Server::Server(const ServedFolder& folder)
    : iPolicy(folder)
    , iLimits(MostConnections, MostConnectionsOfOneClient)
{
    for (unsigned i = 0; i < threadCount(); ++i)
        iWorkers.push_back(std::make_unique<Worker>());
    iSignals.emplace(iWorkers.front()->context, SIGINT, SIGTERM, SIGHUP);
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
        Acceptor acceptor(iWorkers.front()->context);
        boost::system::error_code error;
        acceptor.open(address.is_v6() ? tcp::v6() : tcp::v4(), error);
        if (!error) {
            // The browser that --open starts must not keep the port.
            fcntl(acceptor.native_handle(), F_SETFD, FD_CLOEXEC);
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
    net::io_context& main = iWorkers.front()->context;
    iSignals->async_wait([this](const boost::system::error_code&, int) { stop(); });
    for (Acceptor& acceptor : iAcceptors)
        net::co_spawn(main, acceptConnections(acceptor), net::detached);
    net::co_spawn(main, endWithParent(), net::detached);

    std::vector<std::jthread> helpers;
    for (size_t i = 1; i < iWorkers.size(); ++i)
        helpers.emplace_back([worker = iWorkers[i].get()] { worker->run(); });
    iWorkers.front()->run();
}

void Server::Worker::run()
{
    net::co_spawn(context, watchTimes(), net::detached);
    context.run();
}

net::awaitable<void> Server::Worker::watchTimes()
{
    net::steady_timer timer(context);
    for (;;) {
        timer.expires_after(1s);
        co_await timer.async_wait(net::use_awaitable);
        times.closeExpired();
    }
}

void Server::stop()
{
    for (const auto& worker : iWorkers)
        worker->context.stop();
}

Server::Worker& Server::nextWorker()
{
    iNextWorker = (iNextWorker + 1) % iWorkers.size();
    return *iWorkers[iNextWorker];
}

net::awaitable<void> Server::acceptConnections(Acceptor& acceptor)
{
    net::steady_timer pause(acceptor.get_executor());
    for (;;) {
        Worker& worker = nextWorker();
        boost::system::error_code error;
        tcp::socket socket = co_await acceptor.async_accept(
            worker.context, net::redirect_error(net::use_awaitable, error));
        if (error) {
            pause.expires_after(PauseWithoutFiles);
            co_await pause.async_wait(net::use_awaitable);
            continue;
        }
        const tcp::endpoint client = socket.remote_endpoint(error);
        if (error)
            continue;
        if (auto admission = iLimits.admit(client.address()))
            net::co_spawn(worker.context,
                serveAdmitted(std::move(socket), iPolicy, worker.times, std::move(admission)),
                net::detached);
    }
}

net::awaitable<void> Server::endWithParent()
{
    const pid_t parent = getppid();
    net::steady_timer timer(iWorkers.front()->context);
    while (getppid() == parent) {
        timer.expires_after(ParentLookInterval);
        co_await timer.async_wait(net::use_awaitable);
    }
    stop();
}

} // namespace leafcast::preview
