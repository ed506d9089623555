// SPDX-License-Identifier: MIT
#include "base/BackgroundQueue.h"

#include "support/LogCapture.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QSemaphore>
#include <QStringList>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

void runEventsUntil(const std::function<bool()>& condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

TEST(BackgroundQueue, WorksInOrderElsewhereAndTellsItHere)
{
    BackgroundQueue queue;
    QString worked;
    QString told;
    for (const QChar letter : u"abc"_s)
        queue.add(
            [&, letter] {
                EXPECT_NE(QThread::currentThread(), qApp->thread());
                worked += letter;
            },
            [&, letter] {
                EXPECT_EQ(QThread::currentThread(), qApp->thread());
                told += letter;
            });
    EXPECT_FALSE(queue.isEmpty());
    runEventsUntil([&] { return queue.isEmpty(); });
    EXPECT_EQ(worked, u"abc"_s);
    EXPECT_EQ(told, u"abc"_s);
}

TEST(BackgroundQueue, GoesOnAfterWorkThatFails)
{
    const LogCapture log;
    BackgroundQueue queue;
    int ended = 0;
    queue.add([] { throw std::runtime_error("broken"); }, [&] { ++ended; });
    queue.add([] {}, [&] { ++ended; });
    runEventsUntil([&] { return ended == 2; });
    EXPECT_EQ(log.lines(), QStringList(u"ERROR BackgroundQueue: broken"_s));
}

TEST(BackgroundQueue, WaitsForItsWorkAndTellsNothingOnceItIsGone)
{
    bool worked = false;
    bool told = false;
    QSemaphore begun;
    {
        BackgroundQueue queue;
        queue.add(
            [&] {
                begun.release();
                QThread::yieldCurrentThread();
                worked = true;
            },
            [&] { told = true; });
        begun.acquire();
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(worked);
    EXPECT_FALSE(told);
}
