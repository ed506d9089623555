// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace leafcast {

/// Slow work on a thread of its own, while this one shows progress and listens for Ctrl-C.
struct WatchedWork {
    std::function<void()> work;
    std::function<void()> showProgress = [] {};
    /// Asks the work to end soon; called again until it has ended.
    std::function<void()> cancel;

    /// Returns when the work has ended. What it throws is thrown here.
    void run() const;
};

} // namespace leafcast
