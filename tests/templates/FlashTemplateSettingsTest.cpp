// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "support/LogCapture.h"
#include "support/TemporaryResources.h"
#include "support/TestFiles.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashTemplateSettingsTest : public testing::Test {
protected:
    FlashTemplateSettingsTest()
    {
        const auto property = &TemporaryResources::property;
        resources.addTemplate(u"float"_s,
            property("pt_number", "pageWidth", "800")
                + TemporaryResources::group("look",
                    property("pt_color", "ink", "0x101010") + property("pt_file", "logo", "")
                        + property("pt_text", "twice", "below"))
                + property("pt_text", "twice", "top"));
        flashTemplate.loadTemplate(u"float"_s);
    }

    SettingsImportReport import(const QByteArray& text)
    {
        return flashTemplate.importPropertiesSettingsFrom(
            resources.addFile(u"settings.txt"_s, text));
    }

    QString value(const QString& key) const { return flashTemplate.propertyValueFor(key, u"?"_s); }

    TemporaryResources resources;
    FlashTemplate flashTemplate;
};

} // namespace

TEST_F(FlashTemplateSettingsTest, WritesEveryPropertyInTreeOrderAndFindsTheFirst)
{
    EXPECT_TRUE(flashTemplate.setPropertyValue(u"twice"_s, u"\u00E9 = \"\\"_s));
    EXPECT_FALSE(flashTemplate.setPropertyValue(u"Twice"_s, u"new"_s));
    flashTemplate.properties()[2]->setKey(u"a\n\rb"_s);
    EXPECT_TRUE(flashTemplate.exportPropertiesSettingsTo(resources.path(u"out.txt"_s)));
    EXPECT_EQ(readTestFile(resources.path(u"out.txt"_s)),
        "\n\rpageWidth=800\n\rlook=\n\rink=0x101010\n\rlogo=\n\rtwice=\xC3\xA9 = "
        "\"\\\n\ra|||b=top");
}

TEST_F(FlashTemplateSettingsTest, ReadsBackWhatItWroteButThePageSize)
{
    const std::pair<QString, QString> values[] = { { u"pageWidth"_s, u"1024"_s },
        { u"ink"_s, u"0xABCdef"_s }, { u"logo"_s, u"/p/\u00E9 100%1 = a.png"_s },
        { u"look"_s, u" \u6E2C \U0001F343\"\\ "_s } };
    for (const auto& [key, value] : values)
        flashTemplate.setPropertyValue(key, value);
    const QString file = resources.path(u"out.txt"_s);
    EXPECT_TRUE(flashTemplate.exportPropertiesSettingsTo(file));
    flashTemplate.loadTemplate(u"float"_s);
    EXPECT_TRUE(flashTemplate.importPropertiesSettingsFrom(file).unknownKeys.isEmpty());
    for (const auto& [key, written] : values)
        EXPECT_EQ(value(key), key == u"pageWidth" ? u"800"_s : written);
}

TEST_F(FlashTemplateSettingsTest, ReadsAnyLineEndAndSplitsAtTheFirstEqualsSign)
{
    for (const QByteArray lineEnd : { "\n", "\r\n", "\n\r" }) {
        QByteArray text = "# comment|ink=old|ink=b=c|twice=|pageWidth=1|ghost=1|";
        const auto report = import(text.replace("|", lineEnd));
        EXPECT_EQ(value(u"ink"_s), u"b=c");
        EXPECT_EQ(value(u"twice"_s), u"");
        EXPECT_EQ(value(u"pageWidth"_s), u"800");
        EXPECT_EQ(report.recordCount, 5);
        EXPECT_EQ(report.unknownKeys.join(u' '), u"ghost");
    }
}

TEST_F(FlashTemplateSettingsTest, ResolvesFilesOfTheCurrentStyleInAnyEncoding)
{
    flashTemplate.setStyleName(u"Night"_s);
    import("logo=any STYLE_RESOURCE:images/logo.png\nink=STYLE_RESOURCE:x");
    EXPECT_EQ(value(u"logo"_s), resources.path(u"AppFiles/Styles/float/Night/images/logo.png"_s));
    EXPECT_EQ(value(u"ink"_s), u"STYLE_RESOURCE:x");
    const LogCapture log;
    EXPECT_FALSE(flashTemplate.importPropertiesSettingsFrom(u"/nowhere/x.txt"_s).readable);
    EXPECT_EQ(import("a shopping list\n").recordCount, 0);
    EXPECT_EQ(import("\xEF\xBB\xBFtwice=\xE6\xB8\xAC").encoding, TextEncoding::Utf8);
    EXPECT_EQ(value(u"twice"_s), u"\u6E2C");
    EXPECT_EQ(import("\xFE\xFF\0t\0w\0i\0c\0e\0=\0\xC9"_ba).encoding, TextEncoding::Utf16);
    EXPECT_EQ(value(u"twice"_s), u"\u00C9");
    EXPECT_EQ(import("\xFF\xFEt\0w\0i\0c\0e\0=\0\xE9\0"_ba).encoding, TextEncoding::Utf16);
    EXPECT_EQ(value(u"twice"_s), u"\u00E9");
    EXPECT_EQ(import("twice=\xE8").encoding, TextEncoding::Latin1);
    EXPECT_EQ(value(u"twice"_s), u"\u00E8");
    EXPECT_EQ(log.lines().size(), 2);
}
