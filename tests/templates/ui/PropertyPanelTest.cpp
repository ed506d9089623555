// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyPanel.h"

#include "EditorTemplate.h"
#include "templates/ui/FlashTmplCell.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class PropertyPanelTest : public EditorTemplate {
protected:
    PropertyPanelTest()
    {
        panel.setFlashTmpl(flashTmpl);
        panel.resize(panel.sizeHint());
        panel.show();
        panel.activateWindow();
        settle();
    }

    template <typename Child> Child* child(const QString& name)
    {
        return panel.findChild<Child*>(name);
    }

    QTreeView* tree() { return child<QTreeView>(u"outlineView"_s); }
    QString value(const QString& key) { return flashTmpl->propertyForKey(key)->value(); }
    QUndoStack& history() { return panel.tmplDelegate().edits().undoStack(); }

    QModelIndex row(const QString& title)
    {
        return tree()
            ->model()
            ->match(tree()->model()->index(0, 0), Qt::DisplayRole, title, 1,
                Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    void select(const QString& title) { tree()->setCurrentIndex(row(title)); }

    template <typename Editor> Editor* startEditing(const QString& title, Qt::Key key)
    {
        select(title);
        settle();
        QTest::keyClick(tree(), key);
        return tree()->findChild<Editor*>(u"propertyEditor"_s);
    }

    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Clicks where the cell of the value has its button.
    void clickButton(const QString& title)
    {
        select(title);
        const QModelIndex index = row(title).siblingAtColumn(1);
        QStyleOptionViewItem option;
        option.initFrom(tree()->viewport());
        option.rect = tree()->visualRect(index);
        const auto cell
            = panel.tmplDelegate().displayCell(*FlashTemplateOutlineDelegate::propertyAt(index));
        const QPoint place = cell->infoButtonRect(option).center();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, place);
        settle();
    }

    std::shared_ptr<FlashTemplate> flashTmpl = load();
    PropertyPanel panel;
    ChangedKeys changed;
};

} // namespace

TEST_F(PropertyPanelTest, StoresWhatIsTypedAtOnceAsOneStep)
{
    auto* editor = startEditing<QLineEdit>(u"Title"_s, Qt::Key_F2);
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->text(), u"Spring"_s);
    QTest::keyClicks(editor, u"May"_s);
    EXPECT_EQ(value(u"bookTitle"_s), u"May"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(history().count(), 1);
    EXPECT_EQ(changed.take().size(), 3);
    EXPECT_TRUE(row(u"Title"_s).data(Qt::FontRole).value<QFont>().bold());

    panel.undoAction()->trigger();
    EXPECT_EQ(value(u"bookTitle"_s), u"Spring"_s);
    EXPECT_FALSE(row(u"Title"_s).data(Qt::FontRole).isValid());
    EXPECT_FALSE(panel.resetAllAction()->isEnabled());
}

TEST_F(PropertyPanelTest, TakesBackByEscapeWhatWasTyped)
{
    auto* editor = startEditing<QLineEdit>(u"Title"_s, Qt::Key_Return);
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, u"May"_s);
    QTest::keyClick(editor, Qt::Key_Escape);
    settle();
    EXPECT_EQ(value(u"bookTitle"_s), u"Spring"_s);
    EXPECT_EQ(history().count(), 0);
}

TEST_F(PropertyPanelTest, AnnouncesNothingWhenTheSameIsTyped)
{
    auto* editor = startEditing<QLineEdit>(u"Background"_s, Qt::Key_F2);
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->text(), u"#336699"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_TRUE(changed.take().isEmpty());
}

TEST_F(PropertyPanelTest, KeepsTheLastTextThatIsAValue)
{
    auto* editor = startEditing<QLineEdit>(u"Page width"_s, Qt::Key_F2);
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, u"12px"_s);
    EXPECT_EQ(value(u"pageWidth"_s), u"12"_s);
    EXPECT_EQ(editor->text(), u"12px"_s);
    EXPECT_EQ(editor->toolTip(), u"it must be a number"_s);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClick(editor, Qt::Key_Backspace);
    EXPECT_TRUE(editor->toolTip().isEmpty());

    editor = startEditing<QLineEdit>(u"Background"_s, Qt::Key_F2);
    QTest::keyClicks(editor, u"#fa0"_s);
    EXPECT_EQ(value(u"backgroundColor"_s), u"0xffaa00"_s);
    EXPECT_EQ(editor->text(), u"#fa0"_s);
}

TEST_F(PropertyPanelTest, ChangesASwitchBySpaceAndByClick)
{
    select(u"Shadow"_s);
    QTest::keyClick(tree(), Qt::Key_Space);
    EXPECT_EQ(value(u"pageShadow"_s), u"NO"_s);
    clickButton(u"Shadow"_s);
    EXPECT_EQ(value(u"pageShadow"_s), u"YES"_s);
    EXPECT_EQ(history().count(), 2);
}

TEST_F(PropertyPanelTest, StoresTheChosenEntryOfAList)
{
    clickButton(u"Pages"_s);
    auto* box = tree()->findChild<QComboBox*>(u"propertyEditor"_s);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->currentText(), u"Auto"_s);
    box->setCurrentIndex(2);
    Q_EMIT box->activated(2);
    settle();
    EXPECT_EQ(value(u"viewMode"_s), u"Double"_s);
    EXPECT_EQ(changed.take(), QStringList{ u"viewMode"_s });
}

TEST_F(PropertyPanelTest, KeepsTheFileWhenItsDialogIsCancelled)
{
    flashTmpl->setPropertyValue(u"logo"_s, u"/tmp/old.png"_s);
    clickButton(u"Logo"_s);
    auto* dialog = child<QFileDialog>(u"fileDialog"_s);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->nameFilters().first(), u"Images (*.jpg *.png)"_s);
    dialog->reject();
    settle();
    EXPECT_EQ(value(u"logo"_s), u"/tmp/old.png"_s);

    child<QAction>(u"actionClearFile"_s)->trigger();
    EXPECT_EQ(value(u"logo"_s), QString());
}

TEST_F(PropertyPanelTest, StoresTheColorOfTheDialog)
{
    clickButton(u"Background"_s);
    auto* dialog = child<QColorDialog>(u"colorDialog"_s);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->currentColor().name(), u"#336699"_s);
    dialog->setCurrentColor(QColor(255, 128, 0));
    dialog->accept();
    settle();
    EXPECT_EQ(value(u"backgroundColor"_s), u"0xff8000"_s);
}

TEST_F(PropertyPanelTest, FiltersTheTreeAndKeepsTheGroupsOfHits)
{
    auto* box = child<QLineEdit>(u"txtFilter"_s);
    box->setFocus();
    QTest::keyClicks(box, u"cast SHADOW"_s);
    EXPECT_FALSE(row(u"Shadow"_s).isValid());
    box->clear();
    QTest::keyClicks(box, u"about SHADOW"_s);
    EXPECT_TRUE(row(u"Shadow"_s).isValid());
    EXPECT_EQ(row(u"Shadow"_s).parent(), row(u"Look"_s));
    EXPECT_TRUE(tree()->isExpanded(row(u"Look"_s)));
    EXPECT_FALSE(row(u"Title"_s).isValid());
    box->setText(u"look"_s);
    EXPECT_TRUE(row(u"Title"_s).isValid());
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(row(u"Note"_s).isValid());
}

TEST_F(PropertyPanelTest, SaysWhyItIsEmpty)
{
    const auto* reason = child<QLabel>(u"lblEmptiness"_s);
    child<QLineEdit>(u"txtFilter"_s)->setText(u"zebra"_s);
    EXPECT_TRUE(reason->isVisible());
    EXPECT_EQ(reason->text(), u"No setting matches “zebra”."_s);
    child<QLineEdit>(u"txtFilter"_s)->clear();
    EXPECT_FALSE(reason->isVisible());
    panel.setFlashTmpl(nullptr);
    EXPECT_EQ(reason->text(), u"No template is open."_s);
}

TEST_F(PropertyPanelTest, TellsAboutTheSelectedSetting)
{
    select(u"Page width"_s);
    EXPECT_EQ(child<QGroupBox>(u"toolTipBox"_s)->title(), u"Page width"_s);
    EXPECT_EQ(child<QTextEdit>(u"toolTip"_s)->toPlainText(), u"About pageWidth"_s);
    EXPECT_FALSE(child<QLabel>(u"lblProblem"_s)->isVisible());

    flashTmpl->setPropertyValue(u"logo"_s, u"/nowhere/logo.png"_s);
    select(u"Logo"_s);
    EXPECT_TRUE(child<QLabel>(u"lblProblem"_s)->isVisible());
    EXPECT_TRUE(child<QLabel>(u"lblProblem"_s)->text().contains(u"there is no such file"_s));
}

TEST_F(PropertyPanelTest, ResetsTheSelectedSetting)
{
    auto* button = child<QToolButton>(u"btnReset"_s);
    select(u"Shadow"_s);
    EXPECT_FALSE(button->isEnabled());
    QTest::keyClick(tree(), Qt::Key_Space);
    ASSERT_TRUE(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(value(u"pageShadow"_s), u"YES"_s);
    EXPECT_FALSE(button->isEnabled());
}
