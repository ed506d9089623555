// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>
#include <optional>
#include <stdexcept>
#include <string>

namespace leafcast::preview {

/// What the program was asked for on its command line.
struct Options {
    std::optional<uint16_t> port;
    std::optional<boost::asio::ip::address> bind;
    bool localOnly = false;
    bool open = false;
    bool quiet = false;
    bool help = false;
};

/// With a sentence for people.
struct WrongUsage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws WrongUsage.
Options parseOptions(int argumentCount, char** arguments);

std::string_view helpText();

} // namespace leafcast::preview
