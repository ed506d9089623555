// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace leafcast {

class FlashTemplateOutlineDelegate;
class FlashTmplCell;

/// Lets the cells of the property editor draw and edit in the rows of the view. What is typed is
/// stored at once, as far as it is a value; Escape takes it back.
class PropertyItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    PropertyItemDelegate(FlashTemplateOutlineDelegate& outline, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(
        QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

Q_SIGNALS:
    /// The file or the colour is to be chosen in a dialog.
    void chooserRequested(const QPersistentModelIndex& index);
    void editorRequested(const QPersistentModelIndex& index);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    std::unique_ptr<FlashTmplCell> cellAt(const QModelIndex& index) const;
    void connectEditor(QWidget* editor) const;
    void commitTyped();
    void commitChosen();
    bool handleMouse(const QMouseEvent& event, QAbstractItemModel& model,
        const QStyleOptionViewItem& option, const QModelIndex& index);
    void act(QAbstractItemModel& model, const QModelIndex& index);

    FlashTemplateOutlineDelegate& iOutline;
    QPersistentModelIndex iPressed; // the row whose info button the mouse went down in
};

} // namespace leafcast
