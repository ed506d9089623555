// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/LogCapture.h"
#include "support/TemporaryResources.h"

#include <gmock/gmock.h>
#include <QDir>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;

namespace {

const auto property = &TemporaryResources::property;

class FlashTemplateTest : public testing::Test {
protected:
    FlashTemplateTest()
    {
        resources.addTemplate(u"float"_s,
            property("pt_number", "pageWidth", "800") + property("pt_number", "pageHeight", "500")
                + property("pt_text", "languageSetting", "en")
                + property("pt_text", "tone", "dark"));
    }

    QString describe(const QString& name, const QByteArray& xml) const
    {
        return resources.addFile(u"AppFiles/Templates/%1/flashTemplate.xml"_s.arg(name), xml);
    }

    TemporaryResources resources;
};

constexpr auto info
    = "<info><htmlPath>h</htmlPath><swfPath>s</swfPath><defaultStyle>d</defaultStyle>"
      "<macAppFilesFolder>m</macAppFilesFolder>"
      "<mobileTmplFilesPath>p</mobileTmplFilesPath></info>";

} // namespace

TEST_F(FlashTemplateTest, StartsAsFloatWithoutAStyle)
{
    const FlashTemplate flashTemplate;
    EXPECT_EQ(flashTemplate.tmplName(), u"float");
    EXPECT_EQ(flashTemplate.tmplVersion(), u"1.0.0");
    EXPECT_EQ(flashTemplate.HTMLFilePath(), u"index.html");
    EXPECT_EQ(flashTemplate.SWFFilePath(), u"book.swf");
    EXPECT_EQ(flashTemplate.defaultSytleName(), u"Plain");
    EXPECT_EQ(flashTemplate.macAppFilesFolder(), u"mac");
    EXPECT_EQ(flashTemplate.mobileTmplFilesPath(), u"mobile");
    EXPECT_TRUE(flashTemplate.needThumbs());
    EXPECT_TRUE(flashTemplate.styleName().isNull());
    EXPECT_EQ(flashTemplate.properties().size(), 4U);
}

TEST_F(FlashTemplateTest, ListsEveryFolderOfTheLibraryAndTheTemplatesThatAreDescribed)
{
    resources.addFile(u"AppFiles/Templates/float/style/page.css"_s, "");
    resources.addFile(u"AppFiles/Templates/broken/readme.txt"_s, "");
    resources.addFile(u"AppFiles/Styles/float/Night/tmplSetting.txt"_s, "");
    const QString library = resources.path(u"AppFiles/Templates/"_s);
    EXPECT_THAT(FlashTemplate::tmplNames(),
        ElementsAre(library + u"broken"_s, library + u"float"_s, library + u"float/style"_s));
    EXPECT_THAT(FlashTemplate::availableTemplates(), ElementsAre(u"float"_s));
    EXPECT_THAT(FlashTemplate::availableStyles(u"float"_s), ElementsAre(u"Night"_s));
    EXPECT_THAT(FlashTemplate::tmplStyleNamesForTmpl(u"float"_s),
        ElementsAre(FlashTemplate::stylePathFor(u"float"_s, u"Night"_s)));
    EXPECT_EQ(FlashTemplate::tmplPathForName(u"float"_s), library + u"float/"_s);
}

TEST_F(FlashTemplateTest, KeepsPageSizeAndLanguageWhenItSwitches)
{
    resources.addTemplate(u"other"_s,
        property("pt_number", "pageWidth", "960") + property("pt_text", "languageSetting", "de")
            + property("pt_text", "tone", "light") + property("pt_text", "paper", "matt"));
    resources.addFile(u"AppFiles/Styles/other/Sand/tmplSetting.txt"_s, "pageWidth=1\npaper=sand");

    FlashTemplate flashTemplate;
    flashTemplate.changeTmplTo(u"other"_s, FlashTemplate::stylePathFor(u"other"_s, u"Sand"_s));
    EXPECT_EQ(flashTemplate.propertyValueFor(u"pageWidth"_s, {}), u"800");
    EXPECT_EQ(flashTemplate.propertyValueFor(u"pageHeight"_s, u"none"_s), u"none");
    EXPECT_EQ(flashTemplate.propertyValueFor(u"languageSetting"_s, {}), u"en");
    EXPECT_EQ(flashTemplate.propertyValueFor(u"tone"_s, {}), u"light");
    EXPECT_EQ(flashTemplate.propertyValueFor(u"paper"_s, {}), u"sand");
    EXPECT_EQ(flashTemplate.styleName(), u"Sand");
}

TEST_F(FlashTemplateTest, RecordsAStyleThatHasNoSettingsFile)
{
    FlashTemplate flashTemplate;
    EXPECT_FALSE(flashTemplate.loadStyleByStyleName(u"Ghost"_s).readable);
    EXPECT_EQ(flashTemplate.styleName(), u"Ghost");
    EXPECT_EQ(flashTemplate.propertyValueFor(u"tone"_s, {}), u"dark");
}

TEST_F(FlashTemplateTest, MendsAMismatchedTagAndABareAmpersand)
{
    describe(u"float"_s,
        QByteArray("<t>") + info + "<properties>" + property("pt_text", "ink", "black & white")
            + "</property></t>");
    EXPECT_EQ(FlashTemplate().propertyValueFor(u"ink"_s, {}), u"black & white");
}

TEST_F(FlashTemplateTest, HasAnEmptyTreeUnderTheNewNameAfterAnUnreadableDescription)
{
    const QString file = describe(u"bad"_s, "no XML at all");
    FlashTemplate flashTemplate;
    const LogCapture log;
    const auto outcome = flashTemplate.loadTemplate(u"bad"_s);
    EXPECT_EQ(outcome.failure, TemplateLoadOutcome::Failure::BrokenDescription);
    EXPECT_EQ(outcome.file, file);
    EXPECT_EQ(outcome.line, 1);
    EXPECT_TRUE(flashTemplate.properties().empty());
    EXPECT_EQ(flashTemplate.tmplName(), u"bad");
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().startsWith(u"ERROR FlashTemplate: %1, line 1: "_s.arg(file)));
}

TEST_F(FlashTemplateTest, ThrowsForADescriptionThatLacksAMandatoryElement)
{
    const QByteArray whole = QByteArray("<t>\n") + info + "<properties/></t>";
    for (const QByteArray name : { "info", "htmlPath", "swfPath", "defaultStyle",
             "macAppFilesFolder", "mobileTmplFilesPath", "properties" }) {
        QByteArray xml = whole;
        describe(u"bad"_s, xml.replace("<" + name, "<other").replace("</" + name, "</other"));
        FlashTemplate flashTemplate;
        EXPECT_THROW(flashTemplate.loadTemplate(u"bad"_s), MalformedTemplate) << name.constData();
    }
}

TEST_F(FlashTemplateTest, HasAnEmptyTreeUnderTheNewNameAfterAMalformedProperty)
{
    resources.addTemplate(
        u"bad"_s, property("pt_text", "whole", "") + "<property><key>half</key></property>");
    FlashTemplate flashTemplate;
    EXPECT_THROW(flashTemplate.loadTemplate(u"bad"_s), MalformedTemplate);
    EXPECT_TRUE(flashTemplate.properties().empty());
    EXPECT_EQ(flashTemplate.tmplName(), u"bad");
}

TEST_F(FlashTemplateTest, OpensATemplateByNameOrSaysWhyNot)
{
    using Failure = TemplateLoadOutcome::Failure;
    describe(u"bad"_s, QByteArray("<t>\n<properties/></t>"));
    EXPECT_EQ(FlashTemplate::open(u"float"_s).flashTemplate->properties().size(), 4U);
    EXPECT_EQ(FlashTemplate::open(u"none"_s).outcome.failure, Failure::NoSuchTemplate);
    EXPECT_EQ(
        FlashTemplate::open(u"../Templates/float"_s).outcome.failure, Failure::NoSuchTemplate);
    const auto broken = FlashTemplate::open(u"bad"_s);
    EXPECT_EQ(broken.flashTemplate, nullptr);
    EXPECT_EQ(broken.outcome.failure, Failure::BrokenDescription);
    EXPECT_EQ(broken.outcome.line, 1);
    EXPECT_EQ(broken.outcome.reason, u"the element \"t\" has no \"info\"");
}
