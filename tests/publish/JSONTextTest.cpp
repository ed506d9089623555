// SPDX-License-Identifier: MIT
#include "publish/JSONText.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(JSONText, EscapesWhatCouldLeaveTheStringOrTheScript)
{
    EXPECT_EQ(
        JSONText::string(u"plain \u00E9 \U0001F343"_s), "\"plain \xC3\xA9 \xF0\x9F\x8D\x83\"");
    EXPECT_EQ(JSONText::string(u"</script><!--"_s), R"("\u003c/script>\u003c!--")");
    EXPECT_EQ(JSONText::string(u"\"\\\n\t\u0001"_s), R"("\"\\\u000a\u0009\u0001")");
    EXPECT_EQ(JSONText::string(u"a\u2028b\u2029c"_s), R"("a\u2028b\u2029c")");
    EXPECT_EQ(JSONText::string(QString()), "\"\"");
    // A half of a surrogate pair is no character: the file stays valid UTF-8.
    EXPECT_EQ(QString::fromUtf8(JSONText::string(QString(QChar(0xD83C)))).size(), 3);
}

TEST(JSONText, WritesFractionsWithUpToFourDecimals)
{
    struct Case {
        double value;
        const char* text;
    };
    const Case cases[] = {
        { 0, "0" },
        { 1, "1" },
        { 0.5, "0.5" },
        { 0.05, "0.05" },
        { 1.0 / 3, "0.3333" },
        { 0.00014, "0.0001" },
        { 0.00004, "0" },
        { 0.99996, "1" },
        { -0.2, "0" },
        { 1.7, "1" },
        { std::numeric_limits<double>::quiet_NaN(), "0" },
        { std::numeric_limits<double>::infinity(), "1" },
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(JSONText::fraction(value), text) << value;
}
