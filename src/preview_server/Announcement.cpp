// SPDX-License-Identifier: MIT
#include "preview_server/Announcement.h"

#include <array>
#include <qrcodegen/qrcodegen.h>

namespace leafcast::preview {

namespace {

    constexpr int QuietZone = 2; // modules; cameras do with less than the four of the standard

    // White on black whatever the terminal's theme: not every camera reads an inverted code.
    constexpr const char* PaperOnInk = "  \033[97;40m";
    constexpr const char* UsualColours = "\033[0m\n";

    // Two modules, one above the other, in one character cell.
    const char* halfBlock(bool upperIsInk, bool lowerIsInk)
    {
        if (upperIsInk)
            return lowerIsInk ? " " : "\u2584";
        return lowerIsInk ? "\u2580" : "\u2588";
    }

    constexpr int LargestVersion = 10; // 174 bytes and more; an address has some 50

    std::string qrCode(const std::string& text)
    {
        std::array<uint8_t, qrcodegen_BUFFER_LEN_FOR_VERSION(LargestVersion)> code{};
        auto work = code;
        if (!qrcodegen_encodeText(text.c_str(), work.data(), code.data(), qrcodegen_Ecc_LOW,
                qrcodegen_VERSION_MIN, LargestVersion, qrcodegen_Mask_AUTO, true))
            return {};
        const int end = qrcodegen_getSize(code.data()) + QuietZone;
        const auto isInk = [&](int x, int y) { return qrcodegen_getModule(code.data(), x, y); };
        std::string drawing;
        for (int y = -QuietZone; y < end; y += 2) {
            drawing += PaperOnInk;
            for (int x = -QuietZone; x < end; ++x)
                drawing += halfBlock(isInk(x, y), y + 1 >= end || isInk(x, y + 1));
            drawing += UsualColours;
        }
        return drawing;
    }

} // namespace

std::string urlOf(const boost::asio::ip::address& address, uint16_t port)
{
    const std::string host
        = address.is_v6() ? '[' + address.to_string() + ']' : address.to_string();
    return "http://" + host + ':' + std::to_string(port) + '/';
}

AnnouncedURLs::AnnouncedURLs(const std::vector<boost::asio::ip::address>& addresses, uint16_t port)
{
    for (const auto& address : addresses)
        (address.is_loopback() ? forThisMachine : forNeighbours).push_back(urlOf(address, port));
}

std::string announcementForPrograms(uint16_t port, const AnnouncedURLs& urls)
{
    std::string line = "{\"port\":" + std::to_string(port) + ",\"addresses\":[";
    for (const auto* list : { &urls.forNeighbours, &urls.forThisMachine }) {
        for (const std::string& url : *list)
            line += (line.back() == '[' ? "\"" : ",\"") + url + '"';
    }
    return line + "]}\n";
}

std::string announcementForPeople(const AnnouncedURLs& urls)
{
    std::string text;
    if (!urls.forNeighbours.empty()) {
        text += "\n  On a tablet or computer of this network:\n\n";
        for (const std::string& url : urls.forNeighbours)
            text += "    " + url + '\n';
        text += '\n' + qrCode(urls.forNeighbours.front());
    }
    if (!urls.forThisMachine.empty())
        text += "\n  On this computer:  " + urls.forThisMachine.front() + '\n';
    return text + "\n  Ctrl-C ends it.\n";
}

} // namespace leafcast::preview
