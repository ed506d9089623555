// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/LogCapture.h"
#include "support/TemporaryResources.h"

#include <gmock/gmock.h>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;

namespace {

const auto property = &TemporaryResources::property;

class FlashTemplateSettingsTest : public testing::Test {
protected:
    FlashTemplateSettingsTest()
    {
        resources.addTemplate(u"float"_s,
            property("pt_number", "pageWidth", "800") + property("pt_number", "pageHeight", "500")
                + TemporaryResources::group("look",
                    property("pt_color", "ink", "0x101010") + property("pt_file", "logo", "")
                        + property("pt_text", "twice", "below"))
                + property("pt_text", "twice", "top"));
        flashTemplate = std::make_unique<FlashTemplate>();
    }

    SettingsImportReport import(const QByteArray& text)
    {
        return flashTemplate->importPropertiesSettingsFrom(
            resources.addFile(u"settings.txt"_s, text));
    }

    QString value(const QString& key) const { return flashTemplate->propertyValueFor(key, u"?"_s); }

    TemporaryResources resources;
    std::unique_ptr<FlashTemplate> flashTemplate;
};

} // namespace

TEST_F(FlashTemplateSettingsTest, FindsTheFirstPropertyInTreeOrder)
{
    EXPECT_EQ(value(u"twice"_s), u"below");
    EXPECT_TRUE(flashTemplate->setPropertyValue(u"twice"_s, u"new"_s));
    EXPECT_EQ(flashTemplate->properties()[2]->childProperties()[2]->value(), u"new");
    EXPECT_EQ(flashTemplate->properties()[3]->value(), u"top");
    EXPECT_FALSE(flashTemplate->setPropertyValue(u"Twice"_s, u"new"_s));
    EXPECT_EQ(value(u"Twice"_s), u"?");
    EXPECT_EQ(value(u"logo"_s), u"");
    EXPECT_TRUE(
        flashTemplate->propertyValueFor(*flashTemplate->properties()[0], u"twice"_s).isNull());
}

TEST_F(FlashTemplateSettingsTest, WritesEveryPropertyInTreeOrder)
{
    flashTemplate->setPropertyValue(u"twice"_s, u"\u00E9 = \"\\"_s);
    flashTemplate->properties()[3]->setKey(u"a\n\rb"_s);
    const QString path = resources.path(u"out.txt"_s);
    EXPECT_TRUE(flashTemplate->exportPropertiesSettingsTo(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(),
        "\n\rpageWidth=800\n\rpageHeight=500\n\rlook=\n\rink=0x101010\n\rlogo="
        "\n\rtwice=\xC3\xA9 = \"\\\n\ra|||b=top");
}

TEST_F(FlashTemplateSettingsTest, RestoresWhatItExportedExceptThePageSize)
{
    flashTemplate->setPropertyValue(u"ink"_s, u"0xabcdef"_s);
    flashTemplate->setPropertyValue(u"pageWidth"_s, u"1000"_s);
    const QString path = resources.path(u"out.txt"_s);
    ASSERT_TRUE(flashTemplate->exportPropertiesSettingsTo(path));

    FlashTemplate fresh;
    fresh.importPropertiesSettingsFrom(path);
    EXPECT_EQ(fresh.propertyValueFor(u"ink"_s, {}), u"0xabcdef");
    EXPECT_EQ(fresh.propertyValueFor(u"pageWidth"_s, {}), u"800");
}

TEST_F(FlashTemplateSettingsTest, ReadsAnyLineEndAndSplitsAtTheFirstEqualsSign)
{
    for (const QByteArray lineEnd : { "\n", "\r\n", "\n\r" }) {
        const auto report
            = import(QByteArray("# comment") + lineEnd + "ink=old" + lineEnd + "ink=b=c" + lineEnd
                + "twice=" + lineEnd + "pageHeight=1" + lineEnd + "ghost=1" + lineEnd);
        EXPECT_EQ(value(u"ink"_s), u"b=c");
        EXPECT_EQ(value(u"twice"_s), u"");
        EXPECT_EQ(value(u"pageHeight"_s), u"500");
        EXPECT_EQ(report.recordCount, 5);
        EXPECT_THAT(report.unknownKeys, ElementsAre(u"ghost"_s));
    }
}

TEST_F(FlashTemplateSettingsTest, ResolvesFilesOfTheCurrentStyle)
{
    flashTemplate->setStyleName(u"Night"_s);
    import("logo=any STYLE_RESOURCE:images/logo.png\nink=STYLE_RESOURCE:x");
    EXPECT_EQ(value(u"logo"_s), resources.path(u"AppFiles/Styles/float/Night/images/logo.png"_s));
    EXPECT_EQ(value(u"ink"_s), u"STYLE_RESOURCE:x");
    import("logo=/pictures/logo.png");
    EXPECT_EQ(value(u"logo"_s), u"/pictures/logo.png");
}

TEST_F(FlashTemplateSettingsTest, ReportsWhatAFileIs)
{
    const LogCapture log;
    EXPECT_FALSE(flashTemplate->importPropertiesSettingsFrom(u"/nowhere/x.txt"_s).readable);
    const auto nothing = import("a shopping list\n");
    EXPECT_TRUE(nothing.readable);
    EXPECT_EQ(nothing.recordCount, 0);
    EXPECT_EQ(import("\xFF\xFEt\0w\0i\0c\0e\0=\0\xE9\0"_ba).encoding, TextEncoding::Utf16);
    EXPECT_EQ(value(u"twice"_s), u"\u00E9");
    EXPECT_EQ(import("twice=\xE8").encoding, TextEncoding::Latin1);
    EXPECT_EQ(value(u"twice"_s), u"\u00E8");
    EXPECT_THAT(log.lines(),
        ElementsAre(testing::_,
            u"WARN SettingsFile: %1 is not UTF-8; read as Latin-1"_s.arg(
                resources.path(u"settings.txt"_s))));
}
