// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"

#include <atomic>
#include <QSemaphore>

namespace leafcast {

/// Holds a worker at a notification of that name and position, after the observers that were there
/// before, until it is opened.
class Gate {
public:
    Gate(const QString& name, int pageIndex)
        : iRegistration(NotificationCenter::defaultCenter().addObserver(
            name, [this, pageIndex](const Notification& notification) {
                if (notification.userInfo.value(QStringLiteral("pageIndex")).toInt() != pageIndex)
                    return;
                iReached = true;
                iOpened.acquire();
            }))
    {
    }
    ~Gate() { open(); }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    bool isReached() const { return iReached; }
    /// For good.
    void open() { iOpened.release(1000); }

private:
    std::atomic<bool> iReached = false;
    QSemaphore iOpened;
    NotificationCenter::Registration iRegistration;
};

} // namespace leafcast
