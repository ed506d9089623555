// SPDX-License-Identifier: MIT
#include "templates/FlashTemplateProperty.h"

#include "base/XMLParser.h"

#include <gtest/gtest.h>
#include <QStringList>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

std::unique_ptr<FlashTemplateProperty> load(const QByteArray& xml)
{
    const auto element = XMLParser().parse(xml, XMLParser::Mode::Strict);
    auto property = std::make_unique<FlashTemplateProperty>();
    property->loadFromNode(*element);
    return property;
}

QByteArray texts(const QByteArray& key)
{
    return "<key>" + key + "</key><title> T </title><desc><![CDATA[<b>]]></desc><value>v</value>"
        + "<valueSource>a,b</valueSource><defalutValue>d</defalutValue>";
}

} // namespace

TEST(FlashTemplateProperty, TakesTheWholeTextOfTheFirstChildOfEachName)
{
    const auto property = load("<property type='pt_list'>" + texts("k") + texts("again")
        + "<aTitle>check</aTitle></property>");
    EXPECT_EQ(property->key(), u"k");
    EXPECT_EQ(property->title(), u" T ");
    EXPECT_EQ(property->desc(), u"<b>");
    EXPECT_EQ(property->value(), u"v");
    EXPECT_EQ(property->valueSource(), u"a,b");
    EXPECT_EQ(property->defaultValue(), u"d");
    EXPECT_EQ(property->aTitle(), u"check");
    EXPECT_EQ(property->propertyType(), pt_list);
}

TEST(FlashTemplateProperty, KnowsElevenTypesByTheirExactNames)
{
    const QStringList names = { u"pt_text"_s, u"pt_number"_s, u"pt_color"_s, u"pt_list"_s,
        u"pt_composite"_s, u"pt_file"_s, u"pt_list_fromFunction"_s, u"pt_form_security"_s,
        u"pt_font"_s, u"pt_form_contactabout"_s, u"pt_bool"_s };
    for (qsizetype code = 0; code < names.size(); ++code)
        EXPECT_EQ(flashTemplatePropertyTypeFromString(names[code]), code);
    EXPECT_EQ(flashTemplatePropertyTypeFromString(u"PT_NUMBER"), pt_text);
    EXPECT_EQ(load("<property>" + texts("k") + "</property>")->propertyType(), pt_text);
}

TEST(FlashTemplateProperty, IsASwitchWheneverItHasAnAType)
{
    EXPECT_EQ(
        load("<property type='pt_number' aType=''>" + texts("k") + "</property>")->propertyType(),
        pt_bool);
}

TEST(FlashTemplateProperty, ReadsItsChildrenInOrderAndTellsThemTheirParent)
{
    const auto group = load("<property>" + texts("g") + "<childProperties><property>" + texts("a")
        + "</property><note/><property>" + texts("b") + "<childProperties/></property>"
        + "</childProperties><childProperties><property/></childProperties></property>");
    ASSERT_EQ(group->childCount(), 2);
    EXPECT_EQ(group->childProperties()[0]->key(), u"a");
    EXPECT_EQ(group->childProperties()[1]->key(), u"b");
    EXPECT_EQ(group->childProperties()[1]->parent(), group.get());
    EXPECT_EQ(group->childProperties()[1]->childCount(), 0);
}

TEST(FlashTemplateProperty, ThrowsForAMissingChildAndNamesItAndItsLine)
{
    for (const QByteArray name :
        { "key", "title", "desc", "value", "valueSource", "defalutValue" }) {
        QByteArray xml = "<property>" + texts("k") + "</property>";
        xml.replace("<" + name + ">", "\n<other>").replace("</" + name + ">", "</other>");
        try {
            load("<property>" + texts("g") + "<childProperties>\n" + xml
                + "</childProperties></property>");
            ADD_FAILURE() << name.constData();
        } catch (const MalformedTemplate& error) {
            EXPECT_TRUE(error.reason().contains(u'"' + QString::fromLatin1(name) + u'"'));
            EXPECT_EQ(error.line(), 2);
        }
    }
}

TEST(FlashTemplateProperty, IgnoresAnElementOfAnotherName)
{
    EXPECT_EQ(load("<properties>" + texts("k") + "</properties>")->title(), u"Empty");
}
