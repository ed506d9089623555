// SPDX-License-Identifier: MIT
#include "base/NotificationCenter.h"

#include <gtest/gtest.h>
#include <semaphore>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(NotificationCenter, AnObserverMayEndItselfAndALaterOneWhileItIsCalled)
{
    NotificationCenter center;
    NotificationCenter::Registration first;
    NotificationCenter::Registration second;
    std::vector<int> calls;
    first = center.addObserver(u"A"_s, [&](const Notification&) {
        calls.push_back(1);
        first = {};
        second = {};
    });
    second = center.addObserver(u"A"_s, [&](const Notification&) { calls.push_back(2); });
    for (const QString& name : { u"B"_s, u"A"_s, u"A"_s })
        center.post(name);
    EXPECT_EQ(calls, std::vector{ 1 });
}

TEST(NotificationCenter, OnceAnObservationHasEndedItsObserverRunsOnNoThread)
{
    NotificationCenter center;
    std::binary_semaphore isCalled(0);
    auto state = std::make_unique<std::string>("in use");
    auto registration = center.addObserver(u"A"_s, [&](const Notification&) {
        isCalled.release();
        std::this_thread::sleep_for(std::chrono::milliseconds(20)); // for a faulty end to overtake
        center.post(u"B"_s);
        state->append(" to the end");
    });
    std::jthread poster([&] { center.post(u"A"_s); });
    isCalled.acquire();
    registration = {};
    EXPECT_EQ(*state, "in use to the end");
    state.reset();
}
