// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <QObject>
#include <QThreadPool>

namespace leafcast {

/// Runs pieces of work one after the other on a thread of its own, and tells its owner's thread,
/// which has an event loop, when each has ended. Destruction clears it.
class BackgroundQueue {
public:
    BackgroundQueue();
    ~BackgroundQueue();
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    /// An exception that the work lets out is logged, and counts as its end.
    void add(std::function<void()> work, std::function<void()> done);

    /// Lets go of an object on the queue's thread, which takes long when its last owner has files
    /// to remove or a program to end.
    void letGo(std::shared_ptr<const void> object);

    /// Waits for what is under way. What waits is not begun, and no end is told any more.
    void clear();

    /// Nothing is under way, and all ends are told.
    bool isEmpty() const { return iUntold == 0; }

private:
    QObject iReceiver; // lives on the owner's thread
    QThreadPool iThread;
    int iUntold = 0;
};

} // namespace leafcast
