// SPDX-License-Identifier: MIT
#include "templates/FlashTemplateProperty.h"

#include "base/XMLParser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

QByteArray texts(const QByteArray& key)
{
    return "<key>" + key + "</key><title> T </title><desc><![CDATA[<b>]]></desc><value>v</value>"
        + "<valueSource>a,b</valueSource><defalutValue>d</defalutValue>";
}

} // namespace

TEST(FlashTemplateProperty, TakesTheFirstChildOfEachNameAndItsChildrenInOrder)
{
    FlashTemplateProperty group;
    group.loadFromNode(*XMLParser().parse("<property type='pt_list'>" + texts("k") + texts("again")
            + "<childProperties><property type='PT_NUMBER'>" + texts("a")
            + "</property><note/><property aType=''>" + texts("b") + "</property></childProperties>"
            + "<childProperties><property/></childProperties></property>",
        XMLParser::Mode::Strict));
    EXPECT_EQ(group.key() + group.title() + group.desc(), u"k T <b>");
    EXPECT_EQ(group.value() + group.valueSource() + group.defaultValue(), u"va,bd");
    EXPECT_EQ(group.propertyType(), pt_list);
    ASSERT_EQ(group.childCount(), 2);
    EXPECT_EQ(group.childProperties()[0]->propertyType(), pt_text);
    EXPECT_EQ(group.childProperties()[1]->key(), u"b");
    EXPECT_EQ(group.childProperties()[1]->propertyType(), pt_bool);
}
