// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>
#include <string>
#include <vector>

namespace leafcast::preview {

/// Such as "http://192.168.1.5:8765/".
std::string urlOf(const boost::asio::ip::address& address, uint16_t port);

/// Where the folder can be reached, the best address first.
struct AnnouncedURLs {
    AnnouncedURLs(const std::vector<boost::asio::ip::address>& addresses, uint16_t port);

    std::vector<std::string> forNeighbours;
    std::vector<std::string> forThisMachine;
};

/// One line for programs, such as {"port":8765,"addresses":["http://192.168.1.5:8765/"]}: the
/// neighbours' addresses, then this machine's.
std::string announcementForPrograms(uint16_t port, const AnnouncedURLs& urls);

/// The addresses in words, and the neighbours' first as a QR code for a tablet's camera.
std::string announcementForPeople(const AnnouncedURLs& urls);

} // namespace leafcast::preview
