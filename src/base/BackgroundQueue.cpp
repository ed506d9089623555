// SPDX-License-Identifier: MIT
#include "base/BackgroundQueue.h"

#include "base/Log.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void runLogged(const std::function<void()>& work)
    try {
        work();
    } catch (const std::exception& exception) {
        LOG_ERROR("BackgroundQueue", QString::fromUtf8(exception.what()));
    }

} // namespace

BackgroundQueue::BackgroundQueue()
{
    iThread.setMaxThreadCount(1);
}

BackgroundQueue::~BackgroundQueue()
{
    clear();
}

void BackgroundQueue::letGo(std::shared_ptr<const void> object)
{
    iThread.start([object = std::move(object)]() mutable { object.reset(); });
}

void BackgroundQueue::clear()
{
    iThread.clear();
    iThread.waitForDone();
    QCoreApplication::removePostedEvents(&iReceiver);
    iUntold = 0;
}

void BackgroundQueue::add(std::function<void()> work, std::function<void()> done)
{
    ++iUntold;
    iThread.start([this, work = std::move(work), done = std::move(done)] {
        runLogged(work);
        QMetaObject::invokeMethod(
            &iReceiver,
            [this, done] {
                --iUntold;
                done();
            },
            Qt::QueuedConnection);
    });
}

} // namespace leafcast
