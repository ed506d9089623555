// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/tcp.hpp>
#include <chrono>
#include <list>

namespace leafcast::preview {

/// The time that each connection of one thread has left. Looking at all of them once a second is
/// much cheaper than a timer for each step of each connection.
class ConnectionTimes {
    struct Timed {
        boost::asio::ip::tcp::socket& socket;
        std::chrono::steady_clock::time_point end;
    };
    using TimedList = std::list<Timed>;

public:
    /// One connection's; it is set before it counts, and lives as long as the socket is used.
    class Time {
    public:
        Time(ConnectionTimes& all, boost::asio::ip::tcp::socket& socket);
        ~Time();
        Time(const Time&) = delete;
        Time& operator=(const Time&) = delete;

        void expireAfter(std::chrono::seconds time);

    private:
        TimedList& iList;
        TimedList::iterator iPlace;
    };

    /// What waits at the socket of an expired connection ends with operation_aborted.
    void closeExpired();

private:
    TimedList iList;
};

} // namespace leafcast::preview
