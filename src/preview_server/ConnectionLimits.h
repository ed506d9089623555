// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>
#include <map>
#include <memory>
#include <mutex>

namespace leafcast::preview {

/// Counts open connections, so that one client can't take them all. Safe to use from several
/// threads; outlives its admissions.
class ConnectionLimits {
public:
    ConnectionLimits(size_t most, size_t mostOfOneClient)
        : iMost(most)
        , iMostOfOneClient(mostOfOneClient)
    {
    }

    /// Counts the connection until it is dropped.
    using Admission = std::shared_ptr<void>;

    /// Null when there are too many.
    Admission admit(const boost::asio::ip::address& client);

private:
    void leave(const boost::asio::ip::address& client);

    const size_t iMost;
    const size_t iMostOfOneClient;
    std::mutex iMutex;
    size_t iCount = 0;
    std::map<boost::asio::ip::address, size_t> iCounts;
};

} // namespace leafcast::preview
