// SPDX-License-Identifier: MIT
#include "templates/ColorCategory.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(ColorCategory, ReadsFourWordsInAnyCaseAsTrueAndNothingElse)
{
    for (const auto* word : { u"yes", u"Show", u"enable", u"True" })
        EXPECT_TRUE(valueAsBool(word));
    for (const auto* word : { u" YES", u"YES ", u"1", u"ON", u"" })
        EXPECT_FALSE(valueAsBool(word));
}

TEST(ColorCategory, ScansAColorFromTheStartOfTheTextAndTruncatesFractions)
{
    const std::pair<QString, QString> cases[] = { { u"  0Xff8000"_s, u"0xff8000"_s },
        { u"FF8000 and more"_s, u"0xff8000"_s }, { u"1FF8000"_s, u"0xff8000"_s },
        { u"#FF8000"_s, u"0x000000"_s }, { u"FFFFFFFFFFFFFFFFFFFFFF"_s, u"0xffffff"_s } };
    for (const auto& [text, color] : cases)
        EXPECT_EQ(colorToHexRGB(colorFromHexRGB(text)), color) << text.toStdString();
    EXPECT_EQ(colorToHexRGB({ 0.5F, 1.0F, 0.0F, 0.3F }), u"0x7fff00"_s);
    EXPECT_EQ(colorToHexRGB({ std::numeric_limits<float>::quiet_NaN(), 0, 0, 1 }), std::nullopt);
}
