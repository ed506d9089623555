// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/address.hpp>
#include <optional>
#include <span>
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

struct OptionText {
    char letter; // of no meaning to people
    const char* name; // without dashes
    const char* value; // stands for its value; null for a switch
    const char* text;
};

/// One sentence that says what the program does.
std::string_view purpose();
std::span<const OptionText> optionTexts();
std::string helpText();

} // namespace leafcast::preview
