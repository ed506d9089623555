// SPDX-License-Identifier: MIT
#include "preview_server/Announcement.h"
#include "preview_server/Browser.h"
#include "preview_server/MachineAddresses.h"
#include "preview_server/Options.h"
#include "preview_server/Server.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

using namespace leafcast::preview;
namespace ip = boost::asio::ip;

namespace {

constexpr uint16_t UsualPort = 8765;
constexpr uint16_t LastPort = UsualPort + 100;

enum ExitCode { Fine = 0, WrongUsageCode = 2, CannotServe = 4 };

// Each connection takes up to two files.
void allowManyFiles()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, 4096);
    setrlimit(RLIMIT_NOFILE, &limit);
}

std::vector<ip::address> listeningAddresses(const Options& options)
{
    if (options.bind)
        return { *options.bind };
    if (options.localOnly)
        return { ip::address_v4::loopback(), ip::address_v6::loopback() };
    return { ip::address_v4::any(), ip::address_v6::any() };
}

std::vector<ip::address> announcedAddresses(const Options& options)
{
    if (options.bind && !options.bind->is_unspecified())
        return { *options.bind };
    std::vector<ip::address> addresses = machineAddresses();
    std::erase_if(addresses, [&](const ip::address& each) {
        return (options.localOnly && !each.is_loopback())
            || (options.bind && options.bind->is_v6() != each.is_v6());
    });
    return addresses;
}

void print(const std::string& text)
{
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

void announce(const Options& options, uint16_t port)
{
    const AnnouncedURLs urls(announcedAddresses(options), port);
    print(announcementForPrograms(port, urls));
    if (!options.quiet && isatty(STDOUT_FILENO) == 1)
        print(announcementForPeople(urls));
    const auto& here = urls.forThisMachine.empty() ? urls.forNeighbours : urls.forThisMachine;
    if (options.open && !here.empty() && !openInBrowser(here.front()))
        std::fputs("iPadPreview: no browser could be started: xdg-open is missing\n", stderr);
}

int serve(const Options& options)
{
    allowManyFiles();
    const ServedFolder folder(".");
    Server server(folder);
    const uint16_t first = options.port.value_or(UsualPort);
    const uint16_t port
        = server.listen(listeningAddresses(options), first, options.port.value_or(LastPort));
    announce(options, port);
    server.run();
    return Fine;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    try {
        signal(SIGPIPE, SIG_IGN);
        const Options options = parseOptions(argumentCount, arguments);
        if (!options.help)
            return serve(options);
        print(helpText());
        return Fine;
    } catch (const WrongUsage& wrong) {
        std::fprintf(stderr, "iPadPreview: %s\n", wrong.what());
        return WrongUsageCode;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "iPadPreview: %s\n", error.what());
        return CannotServe;
    }
}
