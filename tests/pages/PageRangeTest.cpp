// SPDX-License-Identifier: MIT
#include "base/NamedException.h"
#include "pages/FlashPageSource.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using leafcast::FlashPageSource;
using leafcast::NamedException;

namespace {

struct RangeCase {
    const char16_t* text;
    qint32 totalPage;
    std::vector<qint32> numbers;
};

const RangeCase rangeCases[] = {
    { u"ALL", 3, { 1, 2, 3 } },
    { u"all", 2, { 1, 2 } },
    { u"ALL", 0, {} },
    { u"ALL", -1, {} },
    { u"ALL ", 3, { 0 } },
    { u"3,1,2,2", 9, { 1, 2, 3 } },
    { u"1-3,7", 9, { 1, 2, 3, 7 } },
    { u"1-5,3-8", 9, { 1, 2, 3, 4, 5, 6, 7, 8 } },
    { u"5-3", 9, {} },
    { u"4-4", 9, { 4 } },
    { u"1-3-9", 9, { 1, 2, 3 } },
    { u"-3", 9, { 0, 1, 2, 3 } },
    { u"5-", 9, {} },
    { u"3--5", 9, {} },
    { u"a-b", 9, { 0 } },
    { u"", 9, { 0 } },
    { u"1,", 9, { 0, 1 } },
    { u"1,,3", 9, { 0, 1, 3 } },
    { u" 5 - 6 ,7abc,x", 9, { 0, 5, 6, 7 } },
    { u"10", 4, { 10 } },
    { u"2147483646-99999999999999", 4, { 2147483646, 2147483647 } },
};

} // namespace

TEST(PageRange, ReadsWhatPeopleWrite)
{
    for (const RangeCase& c : rangeCases)
        EXPECT_EQ(
            FlashPageSource::parsePageRange(QString::fromUtf16(c.text), c.totalPage), c.numbers)
            << qPrintable(QString::fromUtf16(c.text));
}

TEST(PageRange, RefusesToNameMoreThanAMillionPages)
{
    EXPECT_EQ(FlashPageSource::parsePageRange(u"1-1000000"_s, 4).size(), 1'000'000u);
    for (const auto& text :
        { u"0-1000000"_s, u"0-99999999999"_s, u"1-600000,1-600000"_s, u"7,1-1000000"_s })
        EXPECT_THROW((void)FlashPageSource::parsePageRange(text, 4), NamedException)
            << qPrintable(text);
    EXPECT_THROW((void)FlashPageSource::parsePageRange(u"ALL"_s, 2147483647), NamedException);
}

TEST(PageRange, LogsEachNumberButNotThoseOfAll)
{
    const leafcast::LogCapture log(leafcast::LogLevel::Debug);
    (void)FlashPageSource::parsePageRange(u"ALL"_s, 2);
    (void)FlashPageSource::parsePageRange(u"7,3"_s, 2);
    EXPECT_THAT(log.lines(),
        testing::ElementsAre(
            u"DEBUG FlashPageSource: range[0]=3"_s, u"DEBUG FlashPageSource: range[1]=7"_s));
}
