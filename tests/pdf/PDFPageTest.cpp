// SPDX-License-Identifier: MIT
#include "pdf/PDFPage.h"

#include <gtest/gtest.h>

using namespace leafcast;

namespace {

// A crop box of 200 by 400 points whose origin lies off zero.
PDFPage page(int rotation, double userUnit = 1)
{
    return { 0, { .mediaBox = { 0, 0, 1000, 1000 }, .cropBox = { 100, 50, 200, 400 } }, rotation,
        userUnit, {} };
}

void expectFraction(const PageFraction& actual, const PageFraction& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
    EXPECT_NEAR(actual.width, expected.width, 1e-9);
    EXPECT_NEAR(actual.height, expected.height, 1e-9);
}

// 20 points from the left edge and 40 from the top edge of the crop box.
constexpr PDFRect nearTopLeft{ 120, 370, 60, 40 };

} // namespace

TEST(PDFPage, MapsARectangleForEveryRotation)
{
    const PageFraction upright{ 0.1, 0.1, 0.3, 0.1 };
    const PageFraction quarterTurn{ 0.8, 0.1, 0.1, 0.3 }; // what was near the left is near the top
    const PageFraction upsideDown{ 0.6, 0.8, 0.3, 0.1 };
    const PageFraction threeQuarters{ 0.1, 0.6, 0.1, 0.3 };
    for (const int turns : { -720, 0, 360 })
        expectFraction(page(turns).displayed(nearTopLeft), upright);
    for (const int turns : { -270, 90, 450 })
        expectFraction(page(turns).displayed(nearTopLeft), quarterTurn);
    for (const int turns : { -180, 180, 540 })
        expectFraction(page(turns).displayed(nearTopLeft), upsideDown);
    for (const int turns : { -90, 270, 630 })
        expectFraction(page(turns).displayed(nearTopLeft), threeQuarters);
    expectFraction(page(45).displayed(nearTopLeft), upright);
}

TEST(PDFPage, ClipsToTheCropBox)
{
    expectFraction(page(0).displayed({ 0, 0, 1000, 1000 }), { 0, 0, 1, 1 });
    expectFraction(page(90).displayed({ 0, 0, 200, 1000 }), { 0, 0, 1, 0.5 });
    expectFraction(page(0).displayed({ 0, 0, 50, 20 }), { 0, 1, 0, 0 });
}

TEST(PDFPage, DisplayedSizeFollowsRotationAndUserUnit)
{
    EXPECT_EQ(page(180).displayedWidth(), 200);
    EXPECT_EQ(page(180).displayedHeight(), 400);
    EXPECT_EQ(page(-90, 2).displayedWidth(), 800);
    EXPECT_EQ(page(-90, 2).displayedHeight(), 400);
}

TEST(PDFPage, AnEmptyCropBoxYieldsNoInfinities)
{
    const PDFPage empty(0, {}, 90, 1, {});
    expectFraction(empty.displayed({ 1, 2, 3, 4 }), { 0, 0, 0, 0 });
}
