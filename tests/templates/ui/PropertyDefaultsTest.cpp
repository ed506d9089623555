// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyDefaults.h"

#include "EditorTemplate.h"
#include "templates/ui/FlashTemplateOutlineDelegate.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class PropertyDefaultsTest : public EditorTemplate {
protected:
    PropertyDefaultsTest()
    {
        resources.addFile(u"AppFiles/Styles/float/Night/tmplSetting.txt"_s,
            "backgroundColor=0x101820\nlogo=STYLE_RESOURCE:moon.png\npageShadow=true\n");
        flashTmpl->loadStyleByStyleName(u"Night"_s);
    }

    FlashTemplateProperty& at(const QString& key) { return *flashTmpl->propertyForKey(key); }

    std::shared_ptr<FlashTemplate> flashTmpl = load();
};

} // namespace

TEST_F(PropertyDefaultsTest, AreTheStylesWhereItHasOneElseTheTemplates)
{
    const PropertyDefaults defaults(*flashTmpl);
    EXPECT_EQ(defaults.valueOf(at(u"backgroundColor"_s)), u"0x101820"_s);
    EXPECT_TRUE(defaults.valueOf(at(u"logo"_s)).endsWith(u"/Styles/float/Night/moon.png"_s));
    EXPECT_EQ(defaults.valueOf(at(u"viewMode"_s)), u"Auto"_s);
    for (const QString& key : { u"backgroundColor"_s, u"logo"_s, u"pageShadow"_s, u"viewMode"_s })
        EXPECT_FALSE(defaults.isChanged(at(key))) << key.toStdString();
}

TEST_F(PropertyDefaultsTest, CompareByMeaning)
{
    const PropertyDefaults defaults(*flashTmpl);
    at(u"pageShadow"_s).setValue(u"YES"_s);
    at(u"backgroundColor"_s).setValue(u"0X101820"_s);
    EXPECT_FALSE(defaults.isChanged(at(u"pageShadow"_s)));
    EXPECT_FALSE(defaults.isChanged(at(u"backgroundColor"_s)));
    at(u"pageShadow"_s).setValue(u"NO"_s);
    EXPECT_TRUE(defaults.isChanged(at(u"pageShadow"_s)));
}

TEST_F(PropertyDefaultsTest, LetThePageSizeFollowTheDocument)
{
    flashTmpl->setPropertyValue(u"pageWidth"_s, u"1200"_s);
    const PropertyDefaults defaults(*flashTmpl);
    EXPECT_FALSE(defaults.isChanged(at(u"pageWidth"_s)));
    at(u"pageWidth"_s).setValue(u"960"_s);
    EXPECT_TRUE(defaults.isChanged(at(u"pageWidth"_s)));
}

TEST_F(PropertyDefaultsTest, ComeBackInOneStepThatCanBeUndone)
{
    FlashTemplateOutlineDelegate outline;
    outline.setFlashTmpl(flashTmpl);
    EXPECT_FALSE(outline.hasChanges());
    at(u"bookTitle"_s).setValue(u"Autumn"_s);
    at(u"backgroundColor"_s).setValue(u"0xffffff"_s);
    at(u"viewMode"_s).setValue(u"Double"_s);

    outline.resetToDefault(at(u"viewMode"_s));
    EXPECT_EQ(at(u"viewMode"_s).value(), u"Auto"_s);
    ChangedKeys changed;
    outline.resetAllToDefaults();
    EXPECT_EQ(changed.take(), (QStringList{ u"bookTitle"_s, u"backgroundColor"_s }));
    EXPECT_EQ(at(u"backgroundColor"_s).value(), u"0x101820"_s);
    EXPECT_FALSE(outline.hasChanges());
    outline.resetAllToDefaults();
    EXPECT_EQ(outline.edits().undoStack().count(), 2);

    outline.edits().undoStack().undo();
    EXPECT_EQ(at(u"bookTitle"_s).value(), u"Autumn"_s);
    EXPECT_EQ(changed.take().size(), 2);
}
