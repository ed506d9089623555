// SPDX-License-Identifier: MIT
#include "cli/ProgressBar.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using leafcast::ProgressBar;

TEST(ProgressBar, ShowsCountRateAndTimeLeft)
{
    const QString line = ProgressBar::line(u"pages"_s, 50, 200, 10, 80);
    EXPECT_TRUE(line.endsWith(u" 50/200 pages  5.0/s  0:30 left"_s)) << line.toStdString();
    EXPECT_EQ(line.count(u'\u2588'), 10);
    EXPECT_EQ(line.count(u'\u2591'), 30);
}

TEST(ProgressBar, FitsAnyTerminal)
{
    for (int columns = 5; columns < 200; ++columns)
        for (const int done : { 0, 1, 5000 })
            EXPECT_LT(ProgressBar::line(u"pages"_s, done, 5000, 7.3, columns).size(), columns);
}
