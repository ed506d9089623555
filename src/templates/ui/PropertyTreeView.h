// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace leafcast {

/// The tree of the property editor: keys and double clicks edit a row's value, wherever in the row
/// the cursor is.
class PropertyTreeView : public QTreeView {
    Q_OBJECT

public:
    explicit PropertyTreeView(QWidget* parent = nullptr);

    /// Shows every row, the groups across both columns.
    void arrangeRows();

    using QTreeView::edit;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

private:
    void spanGroups(const QModelIndex& parent);
};

} // namespace leafcast
