// SPDX-License-Identifier: MIT
#include "templates/PropertyValueCheck.h"

#include "support/TestFiles.h"
#include "templates/FlashTemplateProperty.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

struct Case {
    FlashTemplatePropertyType type;
    QString typed;
    QString expected;
};

PropertyValueCheck check(FlashTemplatePropertyType type, const QString& typed)
{
    FlashTemplateProperty property;
    property.setPropertyType(type);
    property.setValueSource(u"Auto, Single page,Double"_s);
    return checkPropertyValue(property, typed);
}

} // namespace

TEST(PropertyValueCheck, StoresWhatEachTypeExpects)
{
    const Case cases[] = { { pt_number, u" -12.50 "_s, u"-12.50"_s },
        { pt_number, u"1e3"_s, u"1e3"_s }, { pt_color, u"#1A2b3C"_s, u"0x1a2b3c"_s },
        { pt_color, u"#F0a"_s, u"0xff00aa"_s }, { pt_bool, u" on"_s, u"YES"_s },
        { pt_bool, u"1"_s, u"YES"_s }, { pt_bool, u"hide"_s, u"NO"_s },
        { pt_bool, u"OFF"_s, u"NO"_s }, { pt_list, u"Double "_s, u"Double"_s },
        { pt_list, u"Single page"_s, u" Single page"_s },
        { pt_file, u"STYLE_RESOURCE:a"_s, u"STYLE_RESOURCE:a"_s },
        { pt_text, u" as \"typed\""_s, u" as \"typed\""_s } };
    for (const auto& [type, typed, stored] : cases)
        EXPECT_EQ(check(type, typed).value, stored) << typed.toStdString();
}

TEST(PropertyValueCheck, SaysWhatATypeExpects)
{
    const Case refused[] = { { pt_number, u"|12px|1,5|nan|1e999"_s, u"it must be a number"_s },
        { pt_color, u"|red|1a2b3c|#1a2b3c4d|0xfff|#ggg"_s,
            u"it must be a colour such as #1a2b3c"_s },
        { pt_bool, u"|maybe|2"_s, u"it must be yes or no"_s },
        { pt_list, u"|double|Auto, Single page"_s,
            u"it must be one of Auto, Single page, Double"_s },
        { pt_file, u"/nowhere.png"_s, u"there is no such file"_s } };
    for (const auto& [type, texts, problem] : refused)
        for (const QString& typed : texts.split(u'|'))
            EXPECT_EQ(check(type, typed).problem, problem) << typed.toStdString();
}

TEST(PropertyValueCheck, MakesAFileThatExistsAbsolute)
{
    const QTemporaryDir folder;
    const QString file = writeTestFile(folder.filePath(u"logo.png"_s), "logo");
    const QString found = check(pt_file, QDir::current().relativeFilePath(file)).value;
    EXPECT_TRUE(QDir::isAbsolutePath(found));
    EXPECT_EQ(QDir::cleanPath(found), file);
    EXPECT_FALSE(check(pt_file, folder.path()).isAccepted());
}
