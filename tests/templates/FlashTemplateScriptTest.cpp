// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/TemporaryResources.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(FlashTemplateScript, WritesEachTypeAsThePlayerReadsItAndAGroupBeforeItsMembers)
{
    const QByteArray cases[][4] = {
        { "pt_number", "pageWidth", "800", "pageWidth:800," },
        { "pt_text", "quote", "a\"\\b", "quote:\"a\"\\b\"," },
        { "pt_color", "ink", "0x1a2b3c", "ink:\"#1a2b3c\"," },
        { "pt_color", "ink", "0X1a2b3c", "ink:\"0X1a2b3c\"," },
        { "pt_file", "Logo", "/p/a.b/c.PNG", "Logo:\"files/extfile/Logo.PNG\"," },
        { "pt_file", "Logo", "/p/a.b/c", "Logo:\"files/extfile/Logo.\"," },
        { "pt_file", "Logo", "", "Logo:\"\"," },
        { "pt_text", "appLogoLinkURL", "HTTPS://a", "appLogoLinkURL:\"HTTPS://a\"," },
        { "pt_text", "appLogoLinkURL", "htt", "appLogoLinkURL:\"http://htt\"," },
        { "pt_list", "OpenWindow", "Blank", "OpenWindow:\"_blank\"," },
    };
    const TemporaryResources resources;
    for (const auto& [type, key, value, entry] : cases) {
        resources.addTemplate(u"float"_s,
            TemporaryResources::group("look", TemporaryResources::property(type, key, value)));
        EXPECT_EQ(FlashTemplate().exportPropertiesSettingsTo1().toUtf8(), "look:\"\"," + entry);
    }
    const FlashTemplate flashTemplate;
    flashTemplate.properties()[0]->setKey(u"a\n\rb\r\nc"_s);
    flashTemplate.properties()[0]->setValue(u"1\n\r2\n3"_s);
    EXPECT_TRUE(flashTemplate.exportPropertiesSettingsTo1().startsWith(u"a|||b\r\nc:\"12\n3\","));
}
