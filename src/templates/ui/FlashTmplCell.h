// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <Qt>
#include <QVariant>

class QLineEdit;
class QPainter;
class QStyleOptionViewItem;
class QWidget;

namespace leafcast {

class FlashTemplateProperty;

/// Shows the value of one property and edits it: the cell of plain text, and the base of the cells
/// of the other types. Made fresh for each request; the property outlives it.
class FlashTmplCell {
public:
    explicit FlashTmplCell(FlashTemplateProperty& pro);
    FlashTmplCell(const FlashTmplCell&) = delete;
    FlashTmplCell& operator=(const FlashTmplCell&) = delete;
    virtual ~FlashTmplCell() = default;

    FlashTemplateProperty& pro() const { return iPro; }
    const QString& title() const { return iTitle; }
    void setTitle(const QString& title) { iTitle = title; }

    /// Takes over the value that is displayed.
    virtual void show(const FlashTemplateProperty&) { }
    /// The value in words, for the eye and for screen readers.
    virtual QString shownText() const { return iTitle; }

    /// What a click sends the cell's action from; empty for a cell without action.
    virtual QRect infoButtonRect(const QStyleOptionViewItem& option) const;
    /// Where the text stands, and its editor.
    virtual QRect textRect(const QStyleOptionViewItem& option) const;
    virtual void draw(QPainter& painter, const QStyleOptionViewItem& option) const;
    void setMouseDownInInfoButton(bool isDown) { iMouseDownInInfoButton = isDown; }

    /// None for a cell whose click is its only edit.
    virtual QWidget* createEditor(QWidget* parent) const;
    virtual void showInEditor(QWidget& editor) const;
    /// What the editor holds, in the form that the edit operation takes; invalid while that is no
    /// value of the property's type.
    virtual QVariant objectOfEditor(const QWidget& editor) const;
    /// Why there is no such value: a clause for people.
    virtual QString problemOfEditor(const QWidget& editor) const;

protected:
    void drawText(
        QPainter& painter, const QStyleOptionViewItem& option, Qt::TextElideMode elide) const;
    /// The text of the property's value as people type it.
    virtual QString editedText() const;
    /// The typed text as the property's type writes it.
    virtual QString normalized(const QString& typed) const { return typed; }

    bool iMouseDownInInfoButton = false;

private:
    FlashTemplateProperty& iPro;
    QString iTitle;
};

} // namespace leafcast
