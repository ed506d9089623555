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
    sigset_t changedHere;
    sigemptyset(&changedHere);
    sigaddset(&changedHere, SIGCHLD);
    sigaddset(&changedHere, SIGPIPE);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &changedHere);
    // In a session of its own Ctrl-C, which ends the server, leaves the browser alone.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);

    std::string program = "xdg-open";
    std::string address = url;
    std::array<char*, 3> arguments{ program.data(), address.data(), nullptr };
    pid_t child = 0;
    const int error
        = posix_spawnp(&child, program.c_str(), nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    return error == 0;
}

} // namespace leafcast::preview
