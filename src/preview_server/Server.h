// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/ConnectionLimits.h"
#include "preview_server/ConnectionTimes.h"
#include "preview_server/FilePolicy.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <memory>
#include <optional>
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

    /// Has a thread of its own, which keeps a connection to its end: nothing is handed over and
    /// nothing waits for a lock.
    struct Worker {
        ConnectionTimes times;
        boost::asio::io_context context{ 1 };

        boost::asio::awaitable<void> watchTimes();
        void run();
    };

    std::vector<Acceptor> openAcceptors(
        const std::vector<boost::asio::ip::address>& addresses, uint16_t port);
    boost::asio::awaitable<void> acceptConnections(Acceptor& acceptor);
    boost::asio::awaitable<void> endWithParent();
    Worker& nextWorker();
    void stop();

    // Connections that are open at the end go with their worker and use what stands above it.
    FilePolicy iPolicy;
    ConnectionLimits iLimits;
    std::vector<std::unique_ptr<Worker>> iWorkers; // the first one accepts for all
    size_t iNextWorker = 0;
    std::optional<boost::asio::signal_set>
        iSignals; // from the start, so that none ends us half-way
    std::vector<Acceptor> iAcceptors;
};

} // namespace leafcast::preview
