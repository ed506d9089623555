// SPDX-License-Identifier: MIT
#include "cli/Interrupt.h"

#include <csignal>

namespace leafcast::Interrupt {

namespace {

    volatile std::sig_atomic_t requested = 0;

    void remember(int)
    {
        requested = 1;
    }

} // namespace

void listen()
{
    struct sigaction action { };
    action.sa_handler = remember;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);
    // A reader of ours that went away is an error of a write, not the end.
    std::signal(SIGPIPE, SIG_IGN);
}

bool isRequested()
{
    return requested != 0;
}

} // namespace leafcast::Interrupt
