// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Limits.h"

#include <csignal>
#include <ctime>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

namespace leafcast::service {

namespace {

    // Read by the signal handler; the worker has one thread.
    pid_t parentAtStart = 0;
    volatile time_t processorDeadline = 0;

    time_t processorSeconds()
    {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return now.tv_sec;
    }

    void onTick(int)
    {
        if (getppid() != parentAtStart || processorSeconds() >= processorDeadline)
            _exit(124);
    }

    void tickEverySecond(bool on)
    {
        itimerval timer{};
        timer.it_interval.tv_sec = on ? 1 : 0;
        timer.it_value.tv_sec = on ? 1 : 0;
        setitimer(ITIMER_REAL, &timer, nullptr);
    }

    void limit(__rlimit_resource_t resource, rlim_t value)
    {
        const rlimit both{ value, value };
        setrlimit(resource, &both);
    }

} // namespace

void Limits::apply() const
{
    limit(RLIMIT_CORE, 0);
    if (niceness > 0)
        setpriority(PRIO_PROCESS, 0, getpriority(PRIO_PROCESS, 0) + niceness);
#ifndef __SANITIZE_ADDRESS__ // its shadow memory alone takes terabytes of address space
    limit(RLIMIT_AS, static_cast<rlim_t>(memoryMebibytes) << 20U);
#endif
    // Each page needs the same large blocks again; giving them back in between costs a page fault
    // for every 4 KiB.
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 48 << 20);
    parentAtStart = getppid();
    struct sigaction action { };
    action.sa_handler = onTick;
    action.sa_flags = SA_RESTART;
    sigaction(SIGALRM, &action, nullptr);
}

RequestWatch::RequestWatch(int seconds)
{
    processorDeadline = processorSeconds() + seconds + 1;
    tickEverySecond(parentAtStart != 0);
}

RequestWatch::~RequestWatch()
{
    tickEverySecond(false);
}

} // namespace leafcast::service
