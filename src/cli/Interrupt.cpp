// SPDX-License-Identifier: MIT
#include "cli/Interrupt.h"

#include "cli/ExitCode.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace leafcast::Interrupt {

namespace {

    volatile std::sig_atomic_t requested = 0;

    void remember(int)
    {
        requested = 1;
    }

    void listenTo(int signalNumber)
    {
        struct sigaction earlier { };
        sigaction(signalNumber, nullptr, &earlier);
        if (earlier.sa_handler == SIG_IGN)
            return;
        struct sigaction action { };
        action.sa_handler = remember;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(signalNumber, &action, nullptr);
    }

} // namespace

void listen()
{
    for (const int signalNumber : { SIGINT, SIGTERM, SIGHUP })
        listenTo(signalNumber);
    // A reader of ours that went away is an error of a write, not the end.
    std::signal(SIGPIPE, SIG_IGN);
}

bool isRequested()
{
    return requested != 0;
}

void endIfRequested(const QString& consequence)
{
    if (isRequested())
        throw CommandFailure(ExitCode::Interrupted, u"interrupted; %1"_s.arg(consequence));
}

} // namespace leafcast::Interrupt
