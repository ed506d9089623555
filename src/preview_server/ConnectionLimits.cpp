// SPDX-License-Identifier: MIT
#include "preview_server/ConnectionLimits.h"

namespace leafcast::preview {

ConnectionLimits::Admission ConnectionLimits::admit(const boost::asio::ip::address& client)
{
    const std::lock_guard lock(iMutex);
    if (iCount >= iMost)
        return nullptr;
    size_t& ofClient = iCounts[client];
    if (ofClient >= iMostOfOneClient)
        return nullptr;
    ++ofClient;
    ++iCount;
    return { this, [client](void* self) { static_cast<ConnectionLimits*>(self)->leave(client); } };
}

void ConnectionLimits::leave(const boost::asio::ip::address& client)
{
    const std::lock_guard lock(iMutex);
    --iCount;
    const auto counted = iCounts.find(client);
    if (--counted->second == 0)
        iCounts.erase(counted);
}

} // namespace leafcast::preview
