// SPDX-License-Identifier: MIT
#include "base/NotificationCenter.h"

#include <gmock/gmock.h>

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
