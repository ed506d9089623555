// SPDX-License-Identifier: MIT
#include "preview_server/Browser.h"

#include <array>
#include <csignal>
#include <spawn.h>

extern "C" char** environ; // NOLINT(readability-redundant-declaration): not in every unistd.h

namespace leafcast::preview {

bool openInBrowser(const std::string& url)
{
    signal(SIGCHLD, SIG_IGN); // nobody waits for it
    std::string program = "xdg-open";
    std::string address = url;
    std::array<char*, 3> arguments{ program.data(), address.data(), nullptr };
    pid_t child = 0;
    return posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments.data(), environ) == 0;
}

} // namespace leafcast::preview
