// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "cli/ProgressBar.h"

#include <atomic>

namespace leafcast {

/// Follows the progress notifications of a thread at work and shows the newest on demand.
class ShownProgress {
public:
    /// type: of the notifications that count; those without one have the empty type.
    ShownProgress(ProgressBar& bar, const QString& notification, const QString& type);

    /// On the thread that owns the bar; nothing is shown before the first notification.
    void show();

private:
    ProgressBar& iBar;
    std::atomic<int> iDone = 0;
    std::atomic<int> iTotal = 0;
    NotificationCenter::Registration iRegistration;
};

} // namespace leafcast
