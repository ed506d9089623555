// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyItemDelegate.h"

#include "templates/ui/FlashTemplateOutlineDelegate.h"
#include "templates/ui/FlashTmplCell.h"
#include "templates/ui/ProblemMark.h"
#include "templates/ui/TemplateText.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int rowHeight = 28;

    bool isValueColumn(const QModelIndex& index)
    {
        return index.column() == FlashTemplateOutlineDelegate::ValueColumn;
    }

    /// As a heading: smaller than what it is over, and in capitals.
    void showAsHeading(QStyleOptionViewItem& option)
    {
        option.font.setPointSizeF(QFontInfo(option.font).pointSizeF() * 0.86);
        option.font.setWeight(QFont::DemiBold);
        option.font.setCapitalization(QFont::AllUppercase);
        option.font.setLetterSpacing(QFont::PercentageSpacing, 104);
        option.fontMetrics = QFontMetrics(option.font);
        option.palette.setColor(
            QPalette::Text, option.palette.color(QPalette::Active, QPalette::PlaceholderText));
    }

    bool isEditKey(const QEvent& event)
    {
        if (event.type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key == Qt::Key_Space || key == Qt::Key_Select || key == Qt::Key_F2
            || key == Qt::Key_Return || key == Qt::Key_Enter;
    }

} // namespace

PropertyItemDelegate::PropertyItemDelegate(FlashTemplateOutlineDelegate& outline, QObject* parent)
    : QStyledItemDelegate(parent)
    , iOutline(outline)
{
    connect(this, &QAbstractItemDelegate::closeEditor, this, [this](QWidget*, EndEditHint hint) {
        if (hint == RevertModelCache)
            iOutline.edits().revertSession();
    });
}

std::unique_ptr<FlashTmplCell> PropertyItemDelegate::cellAt(const QModelIndex& index) const
{
    return iOutline.displayCell(*FlashTemplateOutlineDelegate::propertyAt(index));
}

void PropertyItemDelegate::initStyleOption(
    QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (FlashTemplateOutlineDelegate::propertyAt(index)->propertyType() == pt_composite)
        showAsHeading(*option);
    if (!isValueColumn(index))
        return;
    // The row is drawn by the style, what stands in it by its cell.
    option->text.clear();
    option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
}

void PropertyItemDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!isValueColumn(index))
        return;
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const auto cell = cellAt(index);
    cell->setMouseDownInInfoButton(iPressed == index);
    painter->save();
    cell->draw(*painter, shown);
    painter->restore();
}

QSize PropertyItemDelegate::sizeHint(
    const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({ 0, rowHeight });
}

QWidget* PropertyItemDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
    QWidget* editor = cellAt(index)->createEditor(parent);
    if (!editor)
        return nullptr;
    editor->setObjectName(u"propertyEditor"_s);
    editor->setAccessibleName(TemplateText::of(property->title()));
    editor->setAccessibleDescription(TemplateText::of(property->desc()));
    connectEditor(editor);
    iOutline.edits().beginSession(*property);
    return editor;
}

void PropertyItemDelegate::connectEditor(QWidget* editor) const
{
    if (auto* line = qobject_cast<QLineEdit*>(editor))
        connect(line, &QLineEdit::textEdited, this, &PropertyItemDelegate::commitTyped);
    if (auto* box = qobject_cast<QComboBox*>(editor))
        connect(box, &QComboBox::activated, this, &PropertyItemDelegate::commitChosen);
}

void PropertyItemDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (const auto* property = FlashTemplateOutlineDelegate::propertyAt(index))
        iOutline.edits().endSession(*property);
    QStyledItemDelegate::destroyEditor(editor, index);
}

void PropertyItemDelegate::commitTyped()
{
    Q_EMIT commitData(qobject_cast<QWidget*>(sender()));
}

void PropertyItemDelegate::commitChosen()
{
    auto* editor = qobject_cast<QWidget*>(sender());
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

void PropertyItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
    const auto cell = cellAt(index);
    // What says the same in the user's own words stays as it was typed.
    const QVariant object = cell->objectOfEditor(*editor);
    if (!object.isValid() || iOutline.textFromObject(*property, object) != property->value())
        cell->showInEditor(*editor);
}

void PropertyItemDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto cell = cellAt(index);
    ProblemMark::show(*editor, cell->problemOfEditor(*editor));
    const QVariant object = cell->objectOfEditor(*editor);
    if (object.isValid())
        model->setData(index, object);
}

void PropertyItemDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto cell = cellAt(index);
    const bool isList = qobject_cast<QComboBox*>(editor) != nullptr;
    editor->setGeometry(isList ? option.rect : cell->textRect(option).adjusted(-2, 1, 0, -1));
}

bool PropertyItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
    if (!property || !isValueColumn(index))
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return handleMouse(*static_cast<QMouseEvent*>(event), *model, option, index);
    default:
        break;
    }
    if (property->propertyType() != pt_bool || !isEditKey(*event))
        return false;
    act(*model, index);
    return true;
}

bool PropertyItemDelegate::handleMouse(const QMouseEvent& event, QAbstractItemModel& model,
    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const bool isInside = event.button() == Qt::LeftButton
        && cellAt(index)->infoButtonRect(shown).contains(event.position().toPoint());
    if (event.type() != QEvent::MouseButtonRelease) {
        iPressed = isInside ? QPersistentModelIndex(index) : QPersistentModelIndex();
        return isInside;
    }
    const bool isClick = isInside && iPressed == index;
    iPressed = QPersistentModelIndex();
    if (isClick)
        act(model, index);
    return isClick;
}

void PropertyItemDelegate::act(QAbstractItemModel& model, const QModelIndex& index)
{
    const auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
    switch (property->propertyType()) {
    case pt_bool:
        model.setData(index, !valueAsBool(property->value()));
        break;
    case pt_list:
        Q_EMIT editorRequested(index);
        break;
    default:
        Q_EMIT chooserRequested(index);
        break;
    }
}

} // namespace leafcast
