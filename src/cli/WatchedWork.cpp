// SPDX-License-Identifier: MIT
#include "cli/WatchedWork.h"

#include "cli/Interrupt.h"

#include <chrono>
#include <future>

namespace leafcast {

void WatchedWork::run() const
{
    constexpr auto lookInterval = std::chrono::milliseconds(50);
    std::future<void> ended = std::async(std::launch::async, work);
    while (ended.wait_for(lookInterval) != std::future_status::ready) {
        showProgress();
        if (Interrupt::isRequested())
            cancel();
    }
    ended.get();
}

} // namespace leafcast
