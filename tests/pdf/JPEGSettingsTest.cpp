// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"

#include <gtest/gtest.h>

using namespace leafcast;

TEST(JPEGSettings, StepOverQualitiesThatTurnWhiteGrey)
{
    struct Row {
        double factor;
        int quality;
        bool fullChroma;
    };
    for (const Row& row : std::initializer_list<Row>{ { 0.0, 30, false }, { 0.05, 35, false },
             { 0.06, 35, false }, { 0.07, 35, false }, { 0.12, 39, false }, { 0.17, 46, false },
             { 0.24, 46, false }, { 0.49, 62, false }, { 0.5, 63, true }, { 1.0, 95, true },
             { -3.0, 30, false }, { 7.0, 95, true } }) {
        EXPECT_EQ(jpegSettings(row.factor).quality, row.quality) << row.factor;
        EXPECT_EQ(jpegSettings(row.factor).fullChroma, row.fullChroma) << row.factor;
    }
}
