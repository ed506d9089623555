// SPDX-License-Identifier: MIT
#include "templates/ScriptHazard.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

/// The reason for a property in a group.
QString hazardOf(FlashTemplatePropertyType type, const QString& value, const QString& key = u"k"_s)
{
    const auto property = std::make_shared<FlashTemplateProperty>();
    property->setPropertyType(type);
    property->setKey(key);
    property->setValue(value);
    const auto group = std::make_shared<FlashTemplateProperty>();
    group->setKey(u"look"_s);
    group->setChildProperties({ nullptr, property });
    const auto found = scriptHazards({ nullptr, group });
    return found.empty() ? QString() : found.front().reason;
}

} // namespace

TEST(ScriptHazard, NamesTextsThatWouldEndOrChange)
{
    EXPECT_EQ(hazardOf(pt_text, u"5\" wide"_s), u"its value holds a double quote");
    EXPECT_EQ(hazardOf(pt_composite, u"C:\\a"_s), u"its value holds a backslash");
    EXPECT_EQ(hazardOf(pt_text, u"a\r\nb"_s), u"its value holds a line break");
    EXPECT_EQ(hazardOf(pt_text, u"a\n\rb 'c' </script> \u00E9"_s), u"");
    EXPECT_EQ(hazardOf(pt_file, u"/p/a \"b\"\\c.png"_s), u"");
    EXPECT_EQ(hazardOf(pt_file, u"/p/a.p\"ng"_s), u"its value holds a double quote");
}

TEST(ScriptHazard, NamesNumbersAndKeysThatAScriptCannotHold)
{
    for (const QString& good : { u"-12"_s, u"+1.50"_s, u".5"_s, u"1e3"_s, u"0x1F"_s, u" 7\n"_s })
        EXPECT_EQ(hazardOf(pt_number, good), u"");
    for (const QString& bad : { u"12px"_s, u"1,5"_s, u"NaN"_s, u"1e999"_s, u"010"_s, u"0x"_s,
             u"1 2"_s, u"-"_s, u"\u0661"_s })
        EXPECT_EQ(hazardOf(pt_number, bad), u"its value \"%1\" is not a number"_s.arg(bad));
    EXPECT_EQ(hazardOf(pt_number, u" "_s), u"its value is empty and must be a number");
    EXPECT_EQ(hazardOf(pt_text, u"v"_s, u"$_gr\u00F6\u00DFe1"_s), u"");
    for (const QString& bad : { u""_s, u"a-b"_s, u"1a"_s, u"a\n"_s, u"a:1,b"_s, u"\"a\""_s })
        EXPECT_NE(hazardOf(pt_text, u"v"_s, bad), u"");
}
