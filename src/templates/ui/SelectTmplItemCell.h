// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace leafcast {

/// A row of the template list: the icon, 32 pixels wide, and the name beside it.
class SelectTmplItemCell : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace leafcast
