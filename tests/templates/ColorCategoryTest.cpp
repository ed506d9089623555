// SPDX-License-Identifier: MIT
#include "templates/ColorCategory.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(ColorCategory, ReadsFourWordsInAnyCaseAsTrueAndNothingElse)
{
    for (const auto* word : { u"yes", u"Show", u"enable", u"True", u"YES" })
        EXPECT_TRUE(valueAsBool(word));
    for (const auto* word : { u" YES", u"YES ", u"1", u"ON", u"NO", u"" })
        EXPECT_FALSE(valueAsBool(word));
}

TEST(ColorCategory, ScansAHexadecimalColorFromTheStartOfTheText)
{
    struct Case {
        const char16_t* text;
        const char16_t* color;
    };
    const Case cases[] = {
        { u"0xFF8000", u"0xff8000" },
        { u"  0Xff8000", u"0xff8000" },
        { u"FF8000", u"0xff8000" },
        { u"FF8000 and more", u"0xff8000" },
        { u"1FF8000", u"0xff8000" },
        { u"#FF8000", u"0x000000" },
        { u"0x", u"0x000000" },
        { u"", u"0x000000" },
        { u"FFFFFFFFFFFFFFFFFFFFFF", u"0xffffff" },
    };
    for (const auto& [text, color] : cases)
        EXPECT_EQ(colorToHexRGB(colorFromHexRGB(text)), QString::fromUtf16(color))
            << qPrintable(QString::fromUtf16(text));
    EXPECT_FLOAT_EQ(colorFromHexRGB(u"0xFF8000").green, 128.0F / 255.0F);
}

TEST(ColorCategory, TruncatesFractionsWhenItWritesAColor)
{
    EXPECT_EQ(colorToHexRGB({ 0.5F, 1.0F, 0.0F, 0.3F }), u"0x7fff00"_s);
    EXPECT_EQ(colorToHexRGB({ std::numeric_limits<float>::quiet_NaN(), 0, 0, 1 }), std::nullopt);
}
