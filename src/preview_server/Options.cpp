// SPDX-License-Identifier: MIT
#include "preview_server/Options.h"

#include <array>
#include <charconv>
#include <getopt.h>
#include <string_view>
#include <vector>

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

    constexpr std::array<OptionText, 6> Texts{ {
        { 'p', "port", "N", "listen on this port (otherwise 8765 or the next free one)" },
        { 'b', "bind", "ADDRESS", "listen on this IP address only" },
        { 'l', "local-only", nullptr, "listen for browsers on this machine only" },
        { 'o', "open", nullptr, "open the address in the browser of this machine" },
        { 'q', "quiet", nullptr,
            "print the line for programs alone, no address in words, no code" },
        { 'h', "help", nullptr, "print this" },
    } };

    std::vector<option> longOptions()
    {
        std::vector<option> options;
        options.reserve(Texts.size() + 1);
        for (const OptionText& each : Texts)
            options.push_back(
                { each.name, each.value ? required_argument : no_argument, nullptr, each.letter });
        options.push_back({});
        return options;
    }

    std::string helpLine(const OptionText& option)
    {
        constexpr size_t indent = 18;
        std::string line = std::string("  --") + option.name;
        if (option.value)
            line += std::string(" ") + option.value;
        line.resize(indent, ' ');
        return line + option.text + '\n';
    }

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
    const std::vector<option> known = longOptions();
    opterr = 0;
    for (;;) {
        const char* argument = arguments[optind];
        const int letter = getopt_long(argumentCount, arguments, "+", known.data(), nullptr);
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

std::string_view purpose()
{
    return "Serves the folder that it is started in to the browsers of this network, as a\n"
           "preview: open the address that it prints, or scan the code with a tablet.";
}

std::span<const OptionText> optionTexts()
{
    return Texts;
}

std::string helpText()
{
    std::string text = "Usage: iPadPreview [OPTIONS]\n\n";
    text += purpose();
    text += "\n\n";
    for (const OptionText& option : Texts)
        text += helpLine(option);
    return text + R"(
The first line on standard output is a JSON object with the addresses. It ends
with Ctrl-C, or together with the program that started it.
)";
}

} // namespace leafcast::preview
