// SPDX-License-Identifier: MIT
#include "preview_server/Options.h"

#include <charconv>
#include <getopt.h>
#include <string_view>

namespace leafcast::preview {

namespace {

    uint16_t parsePort(std::string_view text)
    {
        uint16_t port = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), port);
        if (result.ec != std::errc() || result.ptr != text.data() + text.size() || port == 0)
            throw WrongUsage("--port: \"" + std::string(text) + "\" is no port from 1 to 65535");
        return port;
    }

    boost::asio::ip::address parseAddress(const char* text)
    {
        boost::system::error_code error;
        auto address = boost::asio::ip::make_address(text, error);
        if (error)
            throw WrongUsage("--bind: \"" + std::string(text) + "\" is no IP address");
        return address;
    }

    constexpr option LongOptions[] = {
        { "port", required_argument, nullptr, 'p' },
        { "bind", required_argument, nullptr, 'b' },
        { "local-only", no_argument, nullptr, 'l' },
        { "open", no_argument, nullptr, 'o' },
        { "quiet", no_argument, nullptr, 'q' },
        { "help", no_argument, nullptr, 'h' },
        {},
    };

    void take(int letter, const char* argument, Options& options)
    {
        switch (letter) {
        case 'p':
            options.port = parsePort(optarg);
            break;
        case 'b':
            options.bind = parseAddress(optarg);
            break;
        case 'l':
            options.localOnly = true;
            break;
        case 'o':
            options.open = true;
            break;
        case 'q':
            options.quiet = true;
            break;
        case 'h':
            options.help = true;
            break;
        default:
            throw WrongUsage(std::string(argument) + ": no such option, or its value is missing");
        }
    }

} // namespace

Options parseOptions(int argumentCount, char** arguments)
{
    Options options;
    opterr = 0;
    for (;;) {
        const char* argument = arguments[optind];
        const int letter = getopt_long(argumentCount, arguments, "+", LongOptions, nullptr);
        if (letter == -1)
            break;
        take(letter, argument, options);
    }
    if (optind < argumentCount)
        throw WrongUsage("\"" + std::string(arguments[optind])
            + "\": it serves the folder that it is started in and takes no other");
    if (options.bind && options.localOnly)
        throw WrongUsage("--bind and --local-only exclude each other");
    return options;
}

std::string_view helpText()
{
    return R"(Usage: iPadPreview [OPTIONS]

Serves the folder that it is started in to the browsers of this network, as a
preview: open the address that it prints, or scan the code with a tablet.

  --port N        listen on this port (otherwise 8765 or the next free one)
  --bind ADDRESS  listen on this IP address only
  --local-only    listen for browsers on this machine only
  --open          open the address in the browser of this machine
  --quiet         print the line for programs alone, no address in words, no code
  --help          print this

The first line on standard output is a JSON object with the addresses. It ends
with Ctrl-C, or together with the program that started it.
)";
}

} // namespace leafcast::preview
