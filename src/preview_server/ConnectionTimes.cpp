// SPDX-License-Identifier: MIT
#include "preview_server/ConnectionTimes.h"

namespace leafcast::preview {

using Clock = std::chrono::steady_clock;

ConnectionTimes::Time::Time(ConnectionTimes& all, boost::asio::ip::tcp::socket& socket)
    : iList(all.iList)
    , iPlace(iList.insert(iList.end(), { socket, Clock::time_point::max() }))
{
}

ConnectionTimes::Time::~Time()
{
    iList.erase(iPlace);
}

void ConnectionTimes::Time::expireAfter(std::chrono::seconds time)
{
    iPlace->end = Clock::now() + time;
}

void ConnectionTimes::closeExpired()
{
    const auto now = Clock::now();
    for (Timed& timed : iList) {
        if (timed.end > now)
            continue;
        boost::system::error_code ignored; // it is closed all the same
        timed.socket.close(ignored);
    }
}

} // namespace leafcast::preview
