// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTemplateOutlineDelegate.h"

#include "EditorTemplate.h"
#include "templates/ui/FlashTmplColorCell.h"
#include "templates/ui/FlashTmplFileCell.h"
#include "templates/ui/FlashTmplListCell.h"
#include "templates/ui/FlashTmplSwitchCell.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashTemplateOutlineDelegateTest : public EditorTemplate {
protected:
    FlashTemplateOutlineDelegateTest() { outline.setFlashTmpl(load()); }

    FlashTemplateProperty& at(const QString& key)
    {
        return *outline.flashTmpl()->propertyForKey(key);
    }

    template <typename Cell> std::unique_ptr<Cell> cellOf(const QString& key)
    {
        auto cell = outline.dataCellForTableColumn(u"value"_s, at(key));
        auto* typed = dynamic_cast<Cell*>(cell.get());
        return std::unique_ptr<Cell>(typed ? (cell.release(), typed) : nullptr);
    }

    bool edit(const QString& key, const QVariant& object)
    {
        return outline.setObjectValue(object, u"value"_s, at(key));
    }

    FlashTemplateOutlineDelegate outline;
    ChangedKeys changed;
};

} // namespace

TEST_F(FlashTemplateOutlineDelegateTest, IsAWellBehavedModelOfTheTree)
{
    const QAbstractItemModelTester tester(
        &outline, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(outline.numberOfChildrenOfItem(nullptr), 2);
    const FlashTemplateProperty* look = outline.childOfItem(0, nullptr);
    EXPECT_EQ(look->key(), u"look"_s);
    EXPECT_EQ(outline.numberOfChildrenOfItem(look), 6);
    EXPECT_TRUE(outline.isItemExpandable(look));
    EXPECT_FALSE(outline.isItemExpandable(outline.childOfItem(1, nullptr)));
    EXPECT_FALSE(outline.isItemExpandable(nullptr));

    outline.setFlashTmpl(nullptr);
    EXPECT_EQ(outline.numberOfChildrenOfItem(nullptr), 0);
}

TEST_F(FlashTemplateOutlineDelegateTest, KeepsTheShownTreeUntilItIsReloaded)
{
    edit(u"bookTitle"_s, u"Autumn"_s);
    at(u"note"_s).setValue(u"set elsewhere"_s);
    outline.reloadData();
    EXPECT_EQ(outline.edits().undoStack().count(), 1);
    outline.flashTmpl()->setProperties({});
    EXPECT_EQ(outline.rowCount(), 2);
    EXPECT_EQ(outline.index(0, 0).data().toString(), u"Look"_s);
    outline.reloadData();
    EXPECT_EQ(outline.rowCount(), 0);
    EXPECT_EQ(outline.edits().undoStack().count(), 0);
}

TEST_F(FlashTemplateOutlineDelegateTest, AnswersForItsColumns)
{
    const auto value = [this](const QString& key) {
        return outline.objectValueForTableColumn(u"value"_s, at(key));
    };
    EXPECT_EQ(value(u"logo"_s), u"go go bay,hello world....just ok"_s);
    EXPECT_EQ(value(u"pageShadow"_s), 1);
    EXPECT_EQ(value(u"viewMode"_s), u"Auto"_s);
    EXPECT_EQ(outline.objectValueForTableColumn({}, at(u"note"_s)), u"Note"_s);
    EXPECT_FALSE(outline.objectValueForTableColumn(u"other"_s, at(u"note"_s)).isValid());

    at(u"note"_s).setTitle({});
    at(u"note"_s).setValue({});
    EXPECT_EQ(outline.objectValueForTableColumn(u"key"_s, at(u"note"_s)), u"(Untitled)"_s);
    EXPECT_EQ(value(u"note"_s), u"(Unknown)"_s);
}

TEST_F(FlashTemplateOutlineDelegateTest, GivesEachTypeItsCell)
{
    const auto color = cellOf<FlashTmplColorCell>(u"backgroundColor"_s);
    ASSERT_TRUE(color);
    EXPECT_EQ(color->title(), u"0x336699"_s);
    EXPECT_FLOAT_EQ(color->color().blue, 0.6F);
    const auto file = cellOf<FlashTmplFileCell>(u"logo"_s);
    ASSERT_TRUE(file);
    EXPECT_EQ(&file->pro(), &at(u"logo"_s));
    const auto box = cellOf<FlashTmplSwitchCell>(u"pageShadow"_s);
    ASSERT_TRUE(box);
    outline.willDisplayCell(*box, u"value"_s, at(u"pageShadow"_s));
    EXPECT_TRUE(box->isOn());
    EXPECT_TRUE(cellOf<FlashTmplCell>(u"note"_s));
}

TEST_F(FlashTemplateOutlineDelegateTest, SelectsAListsChoiceForDisplayOnly)
{
    for (const QString& value : { u"Auto"_s, u"Double"_s }) {
        at(u"viewMode"_s).setValue(value);
        const auto cell = cellOf<FlashTmplListCell>(u"viewMode"_s);
        EXPECT_EQ(cell->indexOfSelectedItem(), 1);
        outline.willDisplayCell(*cell, u"value"_s, at(u"viewMode"_s));
        EXPECT_EQ(cell->items().value(cell->indexOfSelectedItem()), value);
    }
    at(u"viewMode"_s).setValue(u"Triple"_s);
    const auto cell = cellOf<FlashTmplListCell>(u"viewMode"_s);
    outline.willDisplayCell(*cell, u"value"_s, at(u"viewMode"_s));
    EXPECT_EQ(cell->indexOfSelectedItem(), -1);
}

TEST_F(FlashTemplateOutlineDelegateTest, StoresByTypeAndAnnouncesOnlyWhatIsNew)
{
    const struct {
        QString key;
        QVariant object;
        QString stored;
    } cases[] = { { u"bookTitle"_s, u"Autumn"_s, u"Autumn"_s },
        { u"backgroundColor"_s, u"0x000000"_s, u"0x000000"_s }, { u"viewMode"_s, 2, u"Double"_s },
        { u"logo"_s, u"/tmp/a.png"_s, u"/tmp/a.png"_s }, { u"pageShadow"_s, false, u"NO"_s },
        { u"pageShadow"_s, 1, u"YES"_s } };
    for (const auto& [key, object, stored] : cases) {
        EXPECT_TRUE(edit(key, object));
        EXPECT_EQ(at(key).value(), stored);
        EXPECT_EQ(changed.take(), QStringList{ key });
        EXPECT_FALSE(edit(key, object));
        EXPECT_TRUE(changed.take().isEmpty());
    }
}

TEST_F(FlashTemplateOutlineDelegateTest, DropsEditsThatHaveNoPlace)
{
    EXPECT_FALSE(outline.setObjectValue(u"x"_s, u"key"_s, at(u"bookTitle"_s)));
    EXPECT_FALSE(edit(u"viewMode"_s, 3));
    EXPECT_FALSE(edit(u"viewMode"_s, -1));
    EXPECT_TRUE(changed.take().isEmpty());
}

TEST_F(FlashTemplateOutlineDelegateTest, EmptiesAFileSettingByAChoiceWithoutAFile)
{
    const auto cell = cellOf<FlashTmplFileCell>(u"logo"_s);
    outline.openPanelDidEnd(*cell, u"/tmp/a.png"_s);
    EXPECT_EQ(outline.onSelectFile(*cell).proposedFile, u"/tmp/a.png"_s);
    EXPECT_EQ(at(u"logo"_s).value(), u"/tmp/a.png"_s);
    outline.openPanelDidEnd(*cell, std::nullopt);
    EXPECT_EQ(at(u"logo"_s).value(), QString());
    EXPECT_EQ(changed.take().size(), 2);
    outline.edits().undoStack().undo();
    EXPECT_EQ(at(u"logo"_s).value(), u"/tmp/a.png"_s);
}

TEST_F(FlashTemplateOutlineDelegateTest, StoresAChosenColorUnlessItIsTheSame)
{
    const auto cell = cellOf<FlashTmplColorCell>(u"backgroundColor"_s);
    outline.colorPanelDidClose(*cell, outline.onSelectColor(*cell));
    EXPECT_TRUE(changed.take().isEmpty());
    outline.colorPanelDidClose(*cell, { 1, 0.5F, 0, 1 });
    EXPECT_EQ(at(u"backgroundColor"_s).value(), u"0xff7f00"_s);
}

TEST(FlashTmplFileCell, ReadsFileTypeFilters)
{
    const struct {
        QString filter;
        QStringList types;
        QStringList dialog;
    } cases[] = { { u"Images|*.jpg;*.png"_s, { u""_s, u"jpg"_s, u"png"_s },
                      { u"Images (*.jpg *.png)"_s, u"All files (*)"_s } },
        { u"*.mp3"_s, { u""_s, u"mp3"_s },
            { u"Files of this kind (*.mp3)"_s, u"All files (*)"_s } },
        { u"pdf"_s, { u"pdf"_s }, { u"Files of this kind (*.pdf)"_s, u"All files (*)"_s } },
        { u"A|*.a|*.b"_s, { u""_s, u"a"_s }, { u"A (*.a)"_s, u"All files (*)"_s } },
        { u""_s, { u""_s }, { u"All files (*)"_s } } };
    for (const auto& [filter, types, dialog] : cases) {
        EXPECT_EQ(FlashTmplFileCell::fileTypes(filter), types);
        EXPECT_EQ(FlashTmplFileCell::dialogFilters(types, filter), dialog);
    }
}
