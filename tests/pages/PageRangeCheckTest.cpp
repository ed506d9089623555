// SPDX-License-Identifier: MIT
#include "pages/PageRangeCheck.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(PageRangeCheck, TakesWhatTheParserReadsAsItIsMeant)
{
    for (const QString& range :
        { u"ALL"_s, u"all"_s, u"1"_s, u"1-3,7"_s, u" 2 - 4 , 9"_s, u"9-9"_s })
        EXPECT_EQ(PageRangeCheck::problem(range, 9), u""_s) << range.toStdString();
    EXPECT_EQ(PageRangeCheck::problem(u"5-9000"_s, 0), u""_s);
}

TEST(PageRangeCheck, NamesWhatIsWrong)
{
    const std::pair<QString, QString> cases[] = { { u""_s, u"such as 1-3,7"_s },
        { u"1,,2"_s, u"comma"_s }, { u"5-"_s, u"“5-”"_s }, { u"-3"_s, u"“-3”"_s },
        { u"1-3-9"_s, u"“1-3-9”"_s }, { u"all "_s, u"“all”"_s }, { u"3, x"_s, u"“x”"_s },
        { u"0-2"_s, u"“0-2”"_s }, { u"99999999999"_s, u"99999999999"_s },
        { u"5-3"_s, u"backwards"_s }, { u"8-10"_s, u"no page 10; the last one is 9"_s } };
    for (const auto& [range, part] : cases)
        EXPECT_TRUE(PageRangeCheck::problem(range, 9).contains(part)) << range.toStdString();
    EXPECT_TRUE(PageRangeCheck::problem(u"1-1000001"_s, 0).contains(u"more pages"_s));
}
