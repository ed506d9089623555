// SPDX-License-Identifier: MIT
#include "templates/ui/StyleCell.h"

#include <QListView>
#include <QPainter>

namespace leafcast {

namespace {
    constexpr int frame = 3;
    constexpr int gap = 6;
} // namespace

QSize StyleCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* gallery = qobject_cast<const QListView*>(option.widget);
    return gallery ? gallery->gridSize() : QStyledItemDelegate::sizeHint(option, index);
}

void StyleCell::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = option.decorationSize;
    const QRect picture(option.rect.center().x() - size.width() / 2, option.rect.top() + 2 * frame,
        size.width(), size.height());
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette& palette = option.palette;
    painter->save();
    if (isSelected)
        painter->fillRect(picture.adjusted(-frame, -frame, frame, frame), palette.highlight());
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, picture);
    painter->setPen(palette.color(QPalette::Mid));
    if (!isSelected)
        painter->drawRect(picture.adjusted(0, 0, -1, -1));
    QFont font = option.font;
    font.setBold(isSelected);
    painter->setFont(font);
    painter->setPen(palette.color(QPalette::Text));
    const QRect name(option.rect.left(), picture.bottom() + gap, option.rect.width(),
        option.rect.bottom() - picture.bottom() - gap);
    painter->drawText(name, Qt::AlignHCenter | Qt::AlignTop, index.data().toString());
    painter->restore();
}

} // namespace leafcast
