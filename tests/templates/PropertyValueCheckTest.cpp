// SPDX-License-Identifier: MIT
#include "templates/PropertyValueCheck.h"

#include "support/TestFiles.h"
#include "templates/FlashTemplateProperty.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

PropertyValueCheck check(
    FlashTemplatePropertyType type, const QString& typed, const QString& valueSource = {})
{
    FlashTemplateProperty property;
    property.setPropertyType(type);
    property.setValueSource(valueSource);
    return checkPropertyValue(property, typed);
}

} // namespace

TEST(PropertyValueCheck, StoresWhatEachTypeExpects)
{
    struct Case {
        FlashTemplatePropertyType type;
        QString typed;
        QString stored;
    };
    const Case cases[] = {
        { pt_number, u" -12.50 "_s, u"-12.50"_s },
        { pt_number, u"1e3"_s, u"1e3"_s },
        { pt_color, u"#1A2b3C"_s, u"0x1a2b3c"_s },
        { pt_color, u"0X1A2B3C"_s, u"0x1a2b3c"_s },
        { pt_color, u"#F0a"_s, u"0xff00aa"_s },
        { pt_bool, u"yes"_s, u"YES"_s },
        { pt_bool, u"True"_s, u"YES"_s },
        { pt_bool, u"SHOW"_s, u"YES"_s },
        { pt_bool, u"enable"_s, u"YES"_s },
        { pt_bool, u" on"_s, u"YES"_s },
        { pt_bool, u"1"_s, u"YES"_s },
        { pt_bool, u"No"_s, u"NO"_s },
        { pt_bool, u"false"_s, u"NO"_s },
        { pt_bool, u"hide"_s, u"NO"_s },
        { pt_bool, u"disable"_s, u"NO"_s },
        { pt_bool, u"OFF"_s, u"NO"_s },
        { pt_bool, u"0"_s, u"NO"_s },
        { pt_file, u""_s, u""_s },
        { pt_file, u"STYLE_RESOURCE:a/b.png"_s, u"STYLE_RESOURCE:a/b.png"_s },
        { pt_text, u" as \"typed\""_s, u" as \"typed\""_s },
        { pt_font, u""_s, u""_s },
    };
    for (const auto& [type, typed, stored] : cases) {
        EXPECT_EQ(check(type, typed).value, stored) << typed.toStdString();
        EXPECT_TRUE(check(type, typed).isAccepted()) << typed.toStdString();
    }
}

TEST(PropertyValueCheck, SaysWhatATypeExpects)
{
    struct Case {
        FlashTemplatePropertyType type;
        QStringList refused;
        QString problem;
    };
    const Case cases[] = {
        { pt_number, { u""_s, u"12px"_s, u"1,5"_s, u"nan"_s, u"inf"_s, u"1e999"_s },
            u"it must be a number"_s },
        { pt_color,
            { u""_s, u"red"_s, u"1a2b3c"_s, u"#1a2b3"_s, u"#1a2b3c4d"_s, u"0xfff"_s, u"#ggg"_s },
            u"it must be a colour such as #1a2b3c"_s },
        { pt_bool, { u""_s, u"maybe"_s, u"2"_s }, u"it must be yes or no"_s },
    };
    for (const auto& [type, texts, problem] : cases)
        for (const QString& typed : texts)
            EXPECT_EQ(check(type, typed).problem, problem) << typed.toStdString();
}

TEST(PropertyValueCheck, TakesOneOfTheChoicesOfAList)
{
    const QString choices = u"Auto, Single page,Double"_s;
    EXPECT_EQ(check(pt_list, u"Double "_s, choices).value, u"Double");
    EXPECT_EQ(check(pt_list, u"Single page"_s, choices).value, u" Single page");
    for (const auto* typed : { u"", u"double", u"Auto, Single page" })
        EXPECT_EQ(check(pt_list, QString::fromUtf16(typed), choices).problem,
            u"it must be one of Auto, Single page, Double");
}

TEST(PropertyValueCheck, MakesAFileThatExistsAbsolute)
{
    const QTemporaryDir folder;
    writeTestFile(folder.filePath(u"logo.png"_s), "logo");
    const QString relative = QDir::current().relativeFilePath(folder.filePath(u"logo.png"_s));
    ASSERT_TRUE(QDir::isRelativePath(relative));
    EXPECT_EQ(QDir::cleanPath(check(pt_file, relative).value), folder.filePath(u"logo.png"_s));
    EXPECT_TRUE(QDir::isAbsolutePath(check(pt_file, relative).value));
    EXPECT_EQ(check(pt_file, folder.filePath(u"none.png"_s)).problem, u"there is no such file");
    EXPECT_FALSE(check(pt_file, folder.path()).isAccepted());
    EXPECT_FALSE(check(pt_file, u"/dev/null"_s).isAccepted());
}
