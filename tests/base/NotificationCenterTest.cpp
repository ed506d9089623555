// SPDX-License-Identifier: MIT
#include "base/NotificationCenter.h"

#include <gmock/gmock.h>
#include <semaphore>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(NotificationCenter, ReachesTheObserversOfTheNameInOrderUntilTheyEnd)
{
    NotificationCenter center;
    std::vector<int> calls;
    auto first = center.addObserver(
        u"A"_s, [&](const Notification& n) { calls.push_back(n.userInfo[u"i"_s].toInt()); });
    const auto other
        = center.addObserver(u"B"_s, [&](const Notification&) { calls.push_back(-1); });
    const auto second
        = center.addObserver(u"A"_s, [&](const Notification&) { calls.push_back(2); });

    center.post(u"A"_s, { { u"i"_s, 1 } });
    first = {};
    center.post(u"A"_s);

    EXPECT_THAT(calls, testing::ElementsAre(1, 2, 2));
}

TEST(NotificationCenter, AnObserverMayEndItselfWhileItIsCalled)
{
    NotificationCenter center;
    int calls = 0;
    NotificationCenter::Registration registration;
    registration = center.addObserver(u"A"_s, [&](const Notification&) {
        ++calls;
        registration = {};
    });
    center.post(u"A"_s);
    center.post(u"A"_s);
    EXPECT_EQ(calls, 1);
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

TEST(NotificationCenter, AnObserverMayEndALaterOneBeforeItsTurn)
{
    NotificationCenter center;
    NotificationCenter::Registration second;
    int calls = 0;
    const auto first = center.addObserver(u"A"_s, [&](const Notification&) { second = {}; });
    second = center.addObserver(u"A"_s, [&](const Notification&) { ++calls; });
    center.post(u"A"_s);
    EXPECT_EQ(calls, 0);
}
