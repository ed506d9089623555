// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace leafcast {

/// A style in the gallery: its picture with the name below. The selected one has a frame, because a
/// tint would change the colours that it is chosen for.
class StyleCell : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The whole cell of the grid: a picture and its name below it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
};

} // namespace leafcast
