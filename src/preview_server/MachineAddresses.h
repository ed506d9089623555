// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace leafcast::preview {

/// The addresses at which other devices or this one reach this machine: those that a neighbour most
/// probably reaches first, the loopback ones last. Without link-local IPv6 addresses, which mean
/// something only together with the name of an interface.
std::vector<boost::asio::ip::address> machineAddresses();

/// Whether a Host field or the authority of a target, with or without a port, is an address of
/// this machine or a name that it gives itself. A page of a stranger's server whose name was made
/// to resolve to us (DNS rebinding) is told apart by that. reachedAt is one of the addresses, known
/// without asking the system for them all, which takes longer than answering.
bool isOwnHost(std::string_view host, const boost::asio::ip::address& reachedAt);

} // namespace leafcast::preview
