// SPDX-License-Identifier: MIT
#include "templates/ui/SelectTmplItemCell.h"

namespace leafcast {

namespace {
    constexpr int rowHeight = 35;
    constexpr int iconPixels = 32;
} // namespace

QSize SelectTmplItemCell::sizeHint(
    const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return { QStyledItemDelegate::sizeHint(option, index).width(), rowHeight };
}

void SelectTmplItemCell::initStyleOption(
    QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationSize = { iconPixels, iconPixels };
}

} // namespace leafcast
