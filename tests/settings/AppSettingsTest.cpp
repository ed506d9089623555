// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "support/TestFiles.h"

#include <QJsonArray>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(AppSettings, EachPropertyIsStoredUnderItsKeyAndOverNoChoiceThatAnotherProcessMade)
{
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"defaults.json"_s));
    AppSettings(defaults).saveSettings();
    UserDefaults otherDefaults(folder.filePath(u"defaults.json"_s));
    AppSettings other(otherDefaults);
    AppSettings settings(defaults);
    other.setLastOutputFileName(u"Äpfel"_s);
    other.setPageWidth(700);
    other.saveSettings();
    settings.setImportLinks(1);
    settings.saveSettings();
    EXPECT_EQ(readTestFile(folder.filePath(u"defaults.json"_s)).simplified().replace("\": ", "\":"),
        R"({ "PageHeight":1250, "PageWidth":700, "importBookmark":0, "importLinks":1, )"
        R"("importPageRange":"", "importPageRangeType":0, "importQualityLevel":0, )"
        R"("lastImportedFile":"", "lastOutputFileFolder":"", "lastOutputFileName":"Äpfel", )"
        R"("lastOutputFileTitle":"", "outputType":0 })");
    EXPECT_EQ(AppSettings(otherDefaults).PageWidth(), 938);
}

TEST(AppSettings, ValuesOfAnotherKindAreConvertedOrLeftOut)
{
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"defaults.json"_s));
    defaults.setObject(u"outputType"_s, u" 1x"_s);
    defaults.setObject(u"importQualityLevel"_s, 1e30);
    defaults.setObject(u"importPageRange"_s, 7);
    defaults.setObject(u"importLinks"_s, QJsonArray{ 1 });
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.outputType(), 1);
    EXPECT_EQ(settings.importQualityLevel(), 2147483647);
    EXPECT_EQ(settings.importPageRange(), u"7"_s);
    EXPECT_EQ(settings.importLinks(), 0);
}
