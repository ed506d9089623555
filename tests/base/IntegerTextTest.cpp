// SPDX-License-Identifier: MIT
#include "base/IntegerText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::integerValue;

TEST(IntegerText, ReadsTheLeadingNumberAsPeopleTypeIt)
{
    EXPECT_EQ(integerValue(u"  5abc"), 5);
    EXPECT_EQ(integerValue(u"5 "), 5);
    EXPECT_EQ(integerValue(u"-12"), -12);
    EXPECT_EQ(integerValue(u"+7"), 7);
    EXPECT_EQ(integerValue(u"x"), 0);
    EXPECT_EQ(integerValue(u""), 0);
    EXPECT_EQ(integerValue(u"- 3"), 0);
}

TEST(IntegerText, SaturatesInsteadOfOverflowing)
{
    EXPECT_EQ(integerValue(u"2147483647"), 2147483647);
    EXPECT_EQ(integerValue(u"2147483648"), 2147483647);
    EXPECT_EQ(integerValue(u"-99999999999999999999999999"), -2147483647 - 1);
}
