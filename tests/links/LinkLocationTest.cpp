// SPDX-License-Identifier: MIT
#include "links/LinkLocation.h"

#include <gtest/gtest.h>
#include <QStringList>

using namespace Qt::StringLiterals;
using leafcast::LinkLocation;
using leafcast::PDFRect;

TEST(LinkLocation, TakesTheRectangleThatTheRotationAsksFor)
{
    const PDFRect link{ 60, 700, 120, 40 };
    const PDFRect cropBox{ 50, 70, 600, 800 }; // its origin is not looked at
    const std::pair<int, QString> cases[] = {
        { 0, u"0.100000 0.075000 0.200000 0.050000"_s },
        { 90, u"0.300000 0.075000 0.066667 0.150000"_s },
        { 180, u"0.300000 0.125000 0.200000 0.050000"_s },
        { 270, u"0.100000 0.125000 0.066667 0.150000"_s },
        { 45, u"0.000000 1.000000 0.000000 0.000000"_s },
    };
    for (const auto& [rotation, expected] : cases) {
        const LinkLocation at = LinkLocation::of(link, cropBox, rotation);
        QStringList numbers;
        for (const float number : { at.x, at.y, at.width, at.height })
            numbers.append(LinkLocation::text(number));
        EXPECT_EQ(numbers.join(u' '), expected) << rotation;
    }
}

TEST(LinkLocation, WritesSixDecimalsRoundedToEven)
{
    EXPECT_EQ(LinkLocation::text(0.0078125F), u"0.007812"_s);
    EXPECT_EQ(
        LinkLocation::text(3.4028235e38F), u"340282346638528859811704183484516925440.000000"_s);
}
