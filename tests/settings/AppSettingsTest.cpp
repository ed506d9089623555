// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using leafcast::AppSettings;
using leafcast::UserDefaults;
using testing::ElementsAre;

namespace {

class AppSettingsTest : public testing::Test {
protected:
    QJsonObject savedObject() const
    {
        return QJsonDocument::fromJson(leafcast::readTestFile(iFilePath)).object();
    }

    QTemporaryDir iFolder;
    QString iFilePath = iFolder.filePath(u"defaults.json"_s);
    UserDefaults iDefaults{ iFilePath };
};

} // namespace

TEST_F(AppSettingsTest, AFirstRunHasEmptyTextsZeroesAndTheStartPageSize)
{
    const AppSettings settings(iDefaults);
    EXPECT_EQ(settings.lastImportedFile(), u""_s);
    EXPECT_FALSE(settings.lastImportedFile().isNull());
    EXPECT_EQ(settings.importQualityLevel(), 0);
    EXPECT_EQ(settings.PageWidth(), 938);
    EXPECT_EQ(settings.PageHeight(), 1250);
}

TEST_F(AppSettingsTest, SavesItsTwelveKeysWithNumbersAsNumbers)
{
    AppSettings settings(iDefaults);
    settings.setLastImportedFile(u"/home/ann/Äpfel.pdf"_s);
    settings.setImportLinks(1);
    settings.saveSettings();

    const QJsonObject saved = savedObject();
    EXPECT_THAT(saved.keys(),
        testing::UnorderedElementsAre(u"lastImportedFile"_s, u"importPageRangeType"_s,
            u"importPageRange"_s, u"importQualityLevel"_s, u"lastOutputFileFolder"_s,
            u"lastOutputFileName"_s, u"lastOutputFileTitle"_s, u"outputType"_s, u"importBookmark"_s,
            u"importLinks"_s, u"PageWidth"_s, u"PageHeight"_s));
    EXPECT_EQ(saved[u"lastImportedFile"], QJsonValue(u"/home/ann/Äpfel.pdf"_s));
    EXPECT_EQ(saved[u"importLinks"], QJsonValue(1));
    EXPECT_EQ(saved[u"PageWidth"], QJsonValue(938));
}

TEST_F(AppSettingsTest, SavesOverNoChoiceThatAnotherProcessMadeMeanwhile)
{
    AppSettings(iDefaults).saveSettings();
    UserDefaults otherDefaults(iFilePath);
    AppSettings other(otherDefaults);
    AppSettings settings(iDefaults);
    other.setOutputType(1);
    other.saveSettings();

    settings.setImportLinks(1);
    settings.saveSettings();
    settings.saveSettings();

    EXPECT_EQ(savedObject()[u"importLinks"], QJsonValue(1));
    EXPECT_EQ(savedObject()[u"outputType"], QJsonValue(1));
}

TEST_F(AppSettingsTest, EveryPropertyComesBackUnderItsOwnKeyButThePageSize)
{
    qint32 number = 100;
    for (const auto& property : AppSettings::properties()) {
        const bool isText = std::holds_alternative<QString AppSettings::*>(property.field);
        const QJsonValue value
            = isText ? QJsonValue(property.key.toString()) : QJsonValue(number++);
        iDefaults.setObject(property.key.toString(), value);
    }
    const AppSettings settings(iDefaults);
    EXPECT_EQ(settings.lastImportedFile(), u"lastImportedFile"_s);
    EXPECT_EQ(settings.importPageRangeType(), 100);
    EXPECT_EQ(settings.importPageRange(), u"importPageRange"_s);
    EXPECT_EQ(settings.importQualityLevel(), 101);
    EXPECT_EQ(settings.lastOutputFileFolder(), u"lastOutputFileFolder"_s);
    EXPECT_EQ(settings.lastOutputFileName(), u"lastOutputFileName"_s);
    EXPECT_EQ(settings.lastOutputFileTitle(), u"lastOutputFileTitle"_s);
    EXPECT_EQ(settings.outputType(), 102);
    EXPECT_EQ(settings.importBookmark(), 103);
    EXPECT_EQ(settings.importLinks(), 104);
    EXPECT_EQ(settings.PageWidth(), 938);
    EXPECT_EQ(settings.PageHeight(), 1250);
}

TEST_F(AppSettingsTest, ValuesOfAnotherKindAreConvertedWhereTheyCanBe)
{
    iDefaults.setObject(u"outputType"_s, u" 1x"_s);
    iDefaults.setObject(u"importLinks"_s, true);
    iDefaults.setObject(u"importQualityLevel"_s, 1e30);
    iDefaults.setObject(u"importPageRange"_s, 7);
    const AppSettings settings(iDefaults);
    EXPECT_EQ(settings.outputType(), 1);
    EXPECT_EQ(settings.importLinks(), 1);
    EXPECT_EQ(settings.importQualityLevel(), 2147483647);
    EXPECT_EQ(settings.importPageRange(), u"7"_s);
}

TEST_F(AppSettingsTest, AValueOfNoUseLeavesThePropertyAndOneLogLine)
{
    AppSettings settings(iDefaults);
    settings.setOutputType(1);
    iDefaults.setObject(u"outputType"_s, QJsonArray{ 0 });
    const leafcast::LogCapture log;
    settings.loadSettings();
    EXPECT_EQ(settings.outputType(), 1);
    EXPECT_THAT(log.lines(),
        ElementsAre(u"WARN AppSettings: the stored outputType is of no use, left out"_s));
}
