// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/ConnectionLimits.h"
#include "preview_server/FilePolicy.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <vector>

namespace leafcast::preview {

/// Listens, and serves whoever connects until it is told to end or its parent process ends.
class Server {
public:
    explicit Server(const ServedFolder& folder);

    /// Listens on all the addresses, at the first port from `first` to `last` where none of them is
    /// taken; an address of a kind that this machine does not have is left out. Answers the port.
    /// Throws std::runtime_error with a sentence.
    uint16_t listen(
        const std::vector<boost::asio::ip::address>& addresses, uint16_t first, uint16_t last);

    /// Returns after SIGINT, SIGTERM or SIGHUP, or the end of the parent process.
    void run();

private:
    using Acceptor = boost::asio::ip::tcp::acceptor;

    std::vector<Acceptor> openAcceptors(
        const std::vector<boost::asio::ip::address>& addresses, uint16_t port);
    boost::asio::awaitable<void> acceptConnections(Acceptor& acceptor);
    boost::asio::awaitable<void> endWithParent();

    // Connections that are open at the end go with the context and use what stands above it.
    FilePolicy iPolicy;
    ConnectionLimits iLimits;
    boost::asio::io_context iContext;
    std::vector<Acceptor> iAcceptors;
};

} // namespace leafcast::preview
