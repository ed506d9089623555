// SPDX-License-Identifier: MIT
#include "base/IntegerText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::integerValue;

TEST(IntegerText, ReadsTheLeadingNumberAsPeopleTypeItAndSaturates)
{
    for (const auto& [text, value] : std::initializer_list<std::pair<QString, int>>{
             { u"  5abc"_s, 5 }, { u"5 "_s, 5 }, { u"-12"_s, -12 }, { u"+7"_s, 7 }, { u"x"_s, 0 },
             { u""_s, 0 }, { u"- 3"_s, 0 }, { u"2147483648"_s, 2147483647 },
             { u"-99999999999999999999999999"_s, -2147483647 - 1 } })
        EXPECT_EQ(integerValue(text), value) << text.toStdString();
}
