// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/TemporaryResources.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

QString entriesOf(const QByteArray& properties)
{
    const TemporaryResources resources;
    resources.addTemplate(u"float"_s, properties);
    return FlashTemplate().exportPropertiesSettingsTo1();
}

QString entryOf(const char* type, const char* key, const char* value)
{
    return entriesOf(TemporaryResources::property(type, key, value));
}

} // namespace

TEST(FlashTemplateScript, WritesEachTypeAsThePlayerReadsIt)
{
    struct Case {
        const char* type;
        const char* key;
        const char* value;
        QString entry;
    };
    const Case cases[] = {
        { "pt_number", "pageWidth", "800", u"pageWidth:800,"_s },
        { "pt_text", "pageWidth", "800", u"pageWidth:\"800\","_s },
        { "pt_bool", "on", "YES", u"on:\"YES\","_s },
        { "pt_text", "quote", "a\"\\b", u"quote:\"a\"\\b\","_s },
        { "pt_color", "ink", "0x1a2b3c", u"ink:\"#1a2b3c\","_s },
        { "pt_color", "ink", "0X1a2b3c", u"ink:\"0X1a2b3c\","_s },
        { "pt_text", "ink", "0x1a2b3c", u"ink:\"0x1a2b3c\","_s },
        { "pt_file", "LogoFile", "/p/a.b/Logo.PNG", u"LogoFile:\"files/extfile/LogoFile.PNG\","_s },
        { "pt_file", "LogoFile", "/p/a.b/Logo", u"LogoFile:\"files/extfile/LogoFile.\","_s },
        { "pt_file", "LogoFile", "", u"LogoFile:\"\","_s },
        { "pt_text", "appLogoLinkURL", "HTTPS://a", u"appLogoLinkURL:\"HTTPS://a\","_s },
        { "pt_text", "appLogoLinkURL", "leaf.example",
            u"appLogoLinkURL:\"http://leaf.example\","_s },
        { "pt_text", "appLogoLinkURL", "htt", u"appLogoLinkURL:\"http://htt\","_s },
        { "pt_text", "appLogoLinkURL", "", u"appLogoLinkURL:\"\","_s },
        { "pt_list", "OpenWindow", "Blank", u"OpenWindow:\"_blank\","_s },
    };
    for (const auto& [type, key, value, entry] : cases)
        EXPECT_EQ(entryOf(type, key, value), entry);
}

TEST(FlashTemplateScript, WritesAGroupBeforeItsMembers)
{
    const auto property = &TemporaryResources::property;
    EXPECT_EQ(entriesOf(TemporaryResources::group("look",
                            TemporaryResources::group("bar", property("pt_text", "a", "1"))
                                + property("pt_text", "b", "2"))
                  + property("pt_text", "c", "3")),
        u"look:\"\",bar:\"\",a:\"1\",b:\"2\",c:\"3\",");
}

TEST(FlashTemplateScript, HandlesOnlyLineFeedAndCarriageReturnInThatOrder)
{
    const TemporaryResources resources;
    resources.addTemplate(u"float"_s, TemporaryResources::property("pt_text", "k", "v"));
    const FlashTemplate flashTemplate;
    flashTemplate.properties()[0]->setKey(u"a\n\rb\r\nc"_s);
    flashTemplate.properties()[0]->setValue(u"1\n\r2\n3"_s);
    EXPECT_EQ(flashTemplate.exportPropertiesSettingsTo1(), u"a|||b\r\nc:\"12\n3\",");
}

TEST(FlashTemplateScript, IsEmptyForATemplateWithoutProperties)
{
    EXPECT_EQ(entriesOf(""), u"");
}
