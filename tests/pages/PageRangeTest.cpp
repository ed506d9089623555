// SPDX-License-Identifier: MIT
#include "base/NamedException.h"
#include "pages/FlashPageSource.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::FlashPageSource;

TEST(PageRange, ReadsWhatPeopleWrite)
{
    const std::pair<QString, std::vector<qint32>> cases[] = {
        { u"ALL"_s, { 1, 2, 3 } },
        { u"all"_s, { 1, 2, 3 } },
        { u"ALL "_s, { 0 } },
        { u"3,1,2,2"_s, { 1, 2, 3 } },
        { u"1-5,3-8"_s, { 1, 2, 3, 4, 5, 6, 7, 8 } },
        { u"5-3"_s, {} },
        { u"4-4"_s, { 4 } },
        { u"1-3-9"_s, { 1, 2, 3 } },
        { u"-3"_s, { 0, 1, 2, 3 } },
        { u"5-"_s, {} },
        { u"3--5"_s, {} },
        { u"a-b"_s, { 0 } },
        { u""_s, { 0 } },
        { u"1,,3"_s, { 0, 1, 3 } },
        { u" 5 - 6 ,7abc,x"_s, { 0, 5, 6, 7 } },
        { u"2147483646-99999999999999"_s, { 2147483646, 2147483647 } },
    };
    for (const auto& [text, numbers] : cases)
        EXPECT_EQ(FlashPageSource::parsePageRange(text, 3), numbers) << qPrintable(text);
    EXPECT_TRUE(FlashPageSource::parsePageRange(u"ALL"_s, -1).empty());
}

TEST(PageRange, RefusesToNameMoreThanAMillionPages)
{
    EXPECT_EQ(FlashPageSource::parsePageRange(u"1-1000000"_s, 4).size(), 1'000'000u);
    for (const auto& text : { u"0-99999999999"_s, u"1-600000,1-600000"_s, u"ALL"_s })
        EXPECT_THROW(
            (void)FlashPageSource::parsePageRange(text, 2147483647), leafcast::NamedException)
            << qPrintable(text);
}
