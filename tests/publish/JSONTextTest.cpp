// SPDX-License-Identifier: MIT
#include "publish/JSONText.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(JSONText, EscapesWhatCouldLeaveTheStringAndLimitsFractions)
{
    EXPECT_EQ(JSONText::string(u"</script><!--\"\\\n\t\u0001"_s),
        R"("\u003c/script>\u003c!--\"\\\u000a\u0009\u0001")");
    // A half of a surrogate pair is no character: the file stays valid UTF-8.
    EXPECT_EQ(QString::fromUtf8(JSONText::string(QString(QChar(0xD83C)))).size(), 3);
    const std::pair<double, const char*> cases[]
        = { { 0.05, "0.05" }, { 0.00014, "0.0001" }, { 0.00004, "0" }, { 0.99996, "1" },
              { -0.2, "0" }, { 1.7, "1" }, { std::numeric_limits<double>::quiet_NaN(), "0" } };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(JSONText::fraction(value), text) << value;
}
