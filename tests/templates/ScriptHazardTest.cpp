// SPDX-License-Identifier: MIT
#include "templates/ScriptHazard.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

std::shared_ptr<FlashTemplateProperty> property(
    FlashTemplatePropertyType type, const QString& key, const QString& value)
{
    auto made = std::make_shared<FlashTemplateProperty>();
    made->setPropertyType(type);
    made->setKey(key);
    made->setValue(value);
    return made;
}

QString hazardOf(FlashTemplatePropertyType type, const QString& key, const QString& value)
{
    const auto found = scriptHazards({ property(type, key, value) });
    return found.empty() ? QString() : found.front().reason;
}

} // namespace

TEST(ScriptHazard, NamesTextsThatWouldEndOrChange)
{
    EXPECT_EQ(hazardOf(pt_text, u"k"_s, u"5\" wide"_s), u"its value holds a double quote");
    EXPECT_EQ(hazardOf(pt_composite, u"k"_s, u"C:\\a"_s), u"its value holds a backslash");
    EXPECT_EQ(hazardOf(pt_list, u"k"_s, u"a\nb"_s), u"its value holds a line break");
    EXPECT_EQ(hazardOf(pt_bool, u"k"_s, u"a\rb"_s), u"its value holds a line break");
    EXPECT_EQ(hazardOf(pt_text, u"k"_s, u"a\r\nb"_s), u"its value holds a line break");
    EXPECT_EQ(hazardOf(pt_text, u"k"_s, u"a\n\rb 'c' </script> é"_s), u"");
    EXPECT_EQ(hazardOf(pt_text, u"k"_s, u""_s), u"");
}

TEST(ScriptHazard, LooksAtWhatTheScriptHoldsOfAFile)
{
    EXPECT_EQ(hazardOf(pt_file, u"k"_s, u"/p/a \"b\"\\c.png"_s), u"");
    EXPECT_EQ(hazardOf(pt_file, u"k"_s, u"/p/a.p\"ng"_s), u"its value holds a double quote");
}

TEST(ScriptHazard, NamesNumbersThatAScriptCannotHold)
{
    for (const auto* good : { u"0", u"-12", u"+1.50", u".5", u"5.", u"1e3", u"0x1F", u" 7\n" })
        EXPECT_EQ(hazardOf(pt_number, u"k"_s, QString::fromUtf16(good)), u"");
    for (const auto* bad : { u"12px", u"1,5", u"NaN", u"Infinity", u"1e999", u"010", u"0x", u"1 2",
             u"-", u".", u"alert(1)", u"\u0661" })
        EXPECT_EQ(hazardOf(pt_number, u"k"_s, QString::fromUtf16(bad)),
            u"its value \"%1\" is not a number"_s.arg(QString::fromUtf16(bad)));
    for (const auto* empty : { u"", u" " })
        EXPECT_EQ(hazardOf(pt_number, u"k"_s, QString::fromUtf16(empty)),
            u"its value is empty and must be a number");
}

TEST(ScriptHazard, NamesKeysThatAreNoIdentifiers)
{
    for (const auto* good : { u"a", u"$_a1", u"größe", u"class" })
        EXPECT_EQ(hazardOf(pt_text, QString::fromUtf16(good), u"v"_s), u"");
    for (const auto* bad : { u"", u"a-b", u"1a", u"a b", u"a\n", u"a\n\rb", u"a:1,b", u"\"a\"" })
        EXPECT_NE(hazardOf(pt_text, QString::fromUtf16(bad), u"v"_s), u"");
}

TEST(ScriptHazard, LooksAtTheWholeTree)
{
    const auto group = property(pt_composite, u"look"_s, u"\""_s);
    group->setChildProperties({ property(pt_text, u"fine"_s, u"v"_s), nullptr,
        property(pt_number, u"width"_s, u"wide"_s) });
    const auto found = scriptHazards({ nullptr, group, property(pt_text, u"last"_s, u"\\"_s) });
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].key, u"look");
    EXPECT_EQ(found[1].key, u"width");
    EXPECT_EQ(found[2].key, u"last");
}
