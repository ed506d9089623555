// SPDX-License-Identifier: MIT
#pragma once

#include "preview_server/ConnectionTimes.h"
#include "preview_server/FilePolicy.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>

namespace leafcast::preview {

/// Answers one client's requests until either side closes, or the client is idle or too slow in
/// asking or taking. Throws boost::system::system_error when the connection breaks or its
/// time is over.
boost::asio::awaitable<void> serveConnection(
    boost::asio::ip::tcp::socket socket, FilePolicy& policy, ConnectionTimes& times);

} // namespace leafcast::preview
