// SPDX-License-Identifier: MIT
#include "preview_server/MachineAddresses.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <boost/beast/core/string.hpp>
#include <climits>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <optional>
#include <unistd.h>

namespace leafcast::preview {

namespace ip = boost::asio::ip;

namespace {

    struct InterfaceAddress {
        ip::address address;
        std::string interface;
    };

    std::optional<ip::address> addressOf(const sockaddr* socketAddress)
    {
        if (socketAddress == nullptr)
            return std::nullopt;
        if (socketAddress->sa_family == AF_INET) {
            const auto* v4 = reinterpret_cast<const sockaddr_in*>(socketAddress);
            return ip::address_v4(ntohl(v4->sin_addr.s_addr));
        }
        if (socketAddress->sa_family == AF_INET6) {
            const auto* v6 = reinterpret_cast<const sockaddr_in6*>(socketAddress);
            ip::address_v6::bytes_type bytes;
            std::copy(
                std::begin(v6->sin6_addr.s6_addr), std::end(v6->sin6_addr.s6_addr), bytes.begin());
            return ip::address_v6(bytes);
        }
        return std::nullopt;
    }

    std::vector<InterfaceAddress> interfaceAddresses()
    {
        ifaddrs* list = nullptr;
        if (getifaddrs(&list) != 0)
            return {};
        const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> owner(list, freeifaddrs);
        std::vector<InterfaceAddress> found;
        for (const ifaddrs* entry = list; entry != nullptr; entry = entry->ifa_next) {
            const auto address = addressOf(entry->ifa_addr);
            if (address && (entry->ifa_flags & IFF_UP) != 0)
                found.push_back({ *address, entry->ifa_name });
        }
        return found;
    }

    bool isLinkLocal(const ip::address& address)
    {
        return address.is_v6() && address.to_v6().is_link_local();
    }

    // Bridges of virtual machines and containers; neighbours don't see what is behind them.
    bool isVirtual(std::string_view interface)
    {
        constexpr std::array prefixes
            = { "docker", "br-", "veth", "virbr", "vmnet", "lxc", "lxd", "cni" };
        return std::any_of(prefixes.begin(), prefixes.end(),
            [&](const char* prefix) { return interface.starts_with(prefix); });
    }

    // The smaller, the more probably a neighbour reaches it.
    int remoteness(const InterfaceAddress& entry)
    {
        return (entry.address.is_loopback() ? 4 : 0) + (isVirtual(entry.interface) ? 2 : 0)
            + (entry.address.is_v6() ? 1 : 0);
    }

    std::string_view withoutPort(std::string_view host)
    {
        if (host.starts_with('['))
            return host.substr(1, host.find(']') - 1);
        return host.substr(0, host.find(':'));
    }

    bool isOwnAddress(const ip::address& address)
    {
        if (address.is_loopback())
            return true;
        const auto all = interfaceAddresses();
        return std::any_of(all.begin(), all.end(),
            [&](const InterfaceAddress& own) { return own.address == address; });
    }

    bool isOwnName(std::string_view name)
    {
        if (name.ends_with('.'))
            name.remove_suffix(1);
        std::array<char, HOST_NAME_MAX + 1> machine{};
        if (gethostname(machine.data(), HOST_NAME_MAX) != 0)
            machine[0] = '\0';
        const std::string full = machine.data();
        const std::string first = full.substr(0, full.find('.'));
        const std::array<std::string, 4> own = { "localhost", full, first, first + ".local" };
        return !name.empty() && std::any_of(own.begin(), own.end(), [&](const std::string& each) {
            return boost::beast::iequals({ name.data(), name.size() }, each);
        });
    }

} // namespace

std::vector<ip::address> machineAddresses()
{
    auto found = interfaceAddresses();
    std::erase_if(found, [](const InterfaceAddress& entry) { return isLinkLocal(entry.address); });
    std::stable_sort(found.begin(), found.end(),
        [](const auto& one, const auto& other) { return remoteness(one) < remoteness(other); });
    std::vector<ip::address> addresses(found.size());
    std::transform(found.begin(), found.end(), addresses.begin(),
        [](const InterfaceAddress& entry) { return entry.address; });
    return addresses;
}

bool isOwnHost(std::string_view host, const ip::address& reachedAt)
{
    const std::string name(withoutPort(host));
    boost::system::error_code noAddress;
    const ip::address address = ip::make_address(name, noAddress);
    if (noAddress)
        return isOwnName(name);
    return address == reachedAt || isOwnAddress(address);
}

} // namespace leafcast::preview
