// SPDX-License-Identifier: MIT
#include "app/ApplyItem.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>

namespace leafcast {

TEST(ApplyItemTest, BlinksWithOneTimerHoweverManyChangesWait)
{
    ApplyItem item;
    EXPECT_FALSE(item.isPending());
    for (int change = 0; change < 10; ++change)
        item.setPending();
    EXPECT_TRUE(item.isPending());
    const auto timers = item.findChildren<QTimer*>();
    EXPECT_LE(timers.size(), 1);
    for (const int tag : { 1, 2, 0, 1 }) {
        item.onTimerEvent();
        EXPECT_EQ(item.tag(), tag);
    }
    item.rest();
    EXPECT_FALSE(item.isPending());
}

} // namespace leafcast
