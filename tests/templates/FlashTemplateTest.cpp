// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/LogCapture.h"
#include "support/TemporaryResources.h"
#include "support/TestFiles.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

const auto property = &TemporaryResources::property;

class FlashTemplateTest : public testing::Test {
protected:
    FlashTemplateTest()
    {
        resources.addTemplate(u"float"_s,
            property("pt_number", "pageWidth", "800") + property("pt_text", "languageSetting", "en")
                + property("pt_text", "tone", "dark"));
    }

    TemporaryResources resources;
    const LogCapture log;
    const QString badFile = u"AppFiles/Templates/bad/flashTemplate.xml"_s;
};

} // namespace

TEST_F(FlashTemplateTest, KeepsPageSizeAndLanguageWhenItSwitches)
{
    resources.addTemplate(u"other"_s,
        property("pt_number", "pageWidth", "960") + property("pt_text", "languageSetting", "de")
            + property("pt_text", "tone", "black & white") + property("pt_text", "paper", "matt"));
    resources.addFile(u"AppFiles/Styles/other/Sand/tmplSetting.txt"_s, "pageWidth=1\npaper=sand");
    FlashTemplate flashTemplate;
    flashTemplate.changeTmplTo(u"other"_s, FlashTemplate::stylePathFor(u"other"_s, u"Sand"_s));
    for (const auto& [key, value] :
        { std::pair(u"pageWidth"_s, u"800"_s), { u"languageSetting"_s, u"en"_s },
            { u"tone"_s, u"black & white"_s }, { u"paper"_s, u"sand"_s } })
        EXPECT_EQ(flashTemplate.propertyValueFor(key, {}), value);
    EXPECT_EQ(flashTemplate.styleName(), u"Sand");
    EXPECT_FALSE(flashTemplate.loadStyleByStyleName(u"Ghost"_s).readable);
    EXPECT_EQ(flashTemplate.styleName(), u"Ghost");
}

TEST_F(FlashTemplateTest, HasAnEmptyTreeUnderTheNewNameAfterABrokenDescription)
{
    FlashTemplate flashTemplate;
    resources.addFile(badFile, "no XML at all");
    const auto outcome = flashTemplate.loadTemplate(u"bad"_s);
    EXPECT_EQ(outcome.failure, TemplateLoadOutcome::Failure::BrokenDescription);
    EXPECT_EQ(outcome.file, resources.path(badFile));
    EXPECT_EQ(outcome.line, 1);
    resources.addTemplate(u"bad"_s, property("pt_text", "k", ""));
    const QByteArray whole = readTestFile(resources.path(badFile));
    for (const QByteArray name :
        { "info", "htmlPath", "swfPath", "defaultStyle", "macAppFilesFolder", "mobileTmplFilesPath",
            "properties", "key", "title", "desc", "value", "valueSource", "defalutValue" }) {
        QByteArray xml = whole;
        xml.replace("<" + name, "<other").replace("</" + name, "</other");
        resources.addFile(badFile, xml);
        EXPECT_THROW(flashTemplate.loadTemplate(u"bad"_s), MalformedTemplate) << name.constData();
        EXPECT_TRUE(flashTemplate.properties().empty());
        EXPECT_EQ(flashTemplate.tmplName(), u"bad");
    }
}

TEST_F(FlashTemplateTest, OpensATemplateByNameOrSaysWhyNot)
{
    resources.addFile(u"AppFiles/Templates/broken/readme.txt"_s, "");
    EXPECT_EQ(FlashTemplate::availableTemplates().join(u' '), u"float");
    EXPECT_EQ(FlashTemplate::open(u"float"_s).flashTemplate->properties().size(), 3U);
    for (const QString& name : { u"none"_s, u"../Templates/float"_s })
        EXPECT_EQ(FlashTemplate::open(name).outcome.failure,
            TemplateLoadOutcome::Failure::NoSuchTemplate);
    resources.addFile(badFile, "<t>\n<properties/></t>");
    EXPECT_EQ(FlashTemplate::open(u"bad"_s).flashTemplate, nullptr);
    EXPECT_EQ(FlashTemplate::open(u"bad"_s).outcome.reason, u"the element \"t\" has no \"info\"");
}

TEST_F(FlashTemplateTest, CopiesItsTreeWithEverythingThatAPropertySays)
{
    resources.addTemplate(u"float"_s,
        "<property type=\"pt_file\"><key>k</key><title>t</title><desc>d</desc><value>v</value>"
        "<valueSource>s</valueSource><defalutValue>f</defalutValue><aTitle>a</aTitle>"
        "<childProperties>"
            + property("pt_text", "child", "first") + "</childProperties></property>");
    FlashTemplate flashTemplate;
    flashTemplate.setStyleName(u"Sand"_s);
    flashTemplate.properties().front()->setReadOnly(true);
    const auto copy = flashTemplate.copy();
    flashTemplate.setPropertyValue(u"k"_s, u"changed"_s);
    flashTemplate.setPropertyValue(u"child"_s, u"changed"_s);
    EXPECT_EQ(copy->styleName(), u"Sand");

    const FlashTemplateProperty& group = *copy->properties().front();
    EXPECT_EQ(group.key() + group.title() + group.desc() + group.value() + group.valueSource()
            + group.defaultValue() + group.aTitle(),
        u"ktdvsfa");
    EXPECT_EQ(group.propertyType(), pt_file);
    EXPECT_TRUE(group.readOnly());
    EXPECT_EQ(group.parent(), nullptr);
    EXPECT_EQ(group.childProperties().front()->value(), u"first");
    EXPECT_EQ(group.childProperties().front()->parent(), &group);
}
