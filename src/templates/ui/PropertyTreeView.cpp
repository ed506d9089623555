// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyTreeView.h"

#include "templates/ui/FlashTemplateOutlineDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace leafcast {

namespace {

    constexpr int indentationPoints = 8;
    // Values need more room than titles: captions and paths are longer.
    constexpr int keyColumnPercent = 43;

    bool isGroup(const QModelIndex& index)
    {
        const auto* property = FlashTemplateOutlineDelegate::propertyAt(index);
        return property && property->propertyType() == pt_composite;
    }

} // namespace

PropertyTreeView::PropertyTreeView(QWidget* parent)
    : QTreeView(parent)
{
    setIndentation(indentationPoints);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHeaderHidden(true);
    setFrameShape(NoFrame);
    viewport()->setBackgroundRole(QPalette::Window); // the panel is quiet, the book is not
    setMouseTracking(true);
    setEditTriggers(EditKeyPressed | SelectedClicked | DoubleClicked | AnyKeyPressed);
}

void PropertyTreeView::arrangeRows()
{
    expandAll();
    spanGroups({});
}

void PropertyTreeView::spanGroups(const QModelIndex& parent)
{
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        setFirstColumnSpanned(row, parent, isGroup(index));
        spanGroups(index);
    }
}

void PropertyTreeView::resizeEvent(QResizeEvent* event)
{
    setColumnWidth(
        FlashTemplateOutlineDelegate::KeyColumn, viewport()->width() * keyColumnPercent / 100);
    QTreeView::resizeEvent(event);
}

void PropertyTreeView::drawRow(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    const bool isFirst = index.row() == 0 && !index.parent().isValid();
    if (isGroup(index) && !isFirst)
        painter->fillRect(
            QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)), option.palette.mid());
}

bool PropertyTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isKey = event && event->type() == QEvent::KeyPress;
    const bool isRowEdit = isKey || trigger == DoubleClicked || trigger == EditKeyPressed;
    const QModelIndex value = index.siblingAtColumn(FlashTemplateOutlineDelegate::ValueColumn);
    if (!isRowEdit || !value.isValid())
        return QTreeView::edit(index, trigger, event);
    // The view closes the editor of its current index when that changes, and no other.
    selectionModel()->setCurrentIndex(value, QItemSelectionModel::NoUpdate);
    return QTreeView::edit(value, trigger, event);
}

void PropertyTreeView::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() != EditingState && edit(currentIndex(), EditKeyPressed, event))
        return;
    QTreeView::keyPressEvent(event);
}

} // namespace leafcast
