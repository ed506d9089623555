// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ui/FlashTmplCell.h"

#include <QStringList>

namespace leafcast {

/// A pop-up list of the choices that the property's value source names.
class FlashTmplListCell : public FlashTmplCell {
public:
    /// With a value among the choices the second one is selected, deliberately: the right one is
    /// selected for display, by show().
    explicit FlashTmplListCell(FlashTemplateProperty& pro);

    const QStringList& items() const { return iItems; }
    int indexOfSelectedItem() const { return iSelected; } // -1 for none

    /// Selects the choice that is the value; none when it is not among them.
    void show(const FlashTemplateProperty& item) override;
    QString shownText() const override;
    QRect infoButtonRect(const QStyleOptionViewItem& option) const override;
    QRect textRect(const QStyleOptionViewItem& option) const override;
    void draw(QPainter& painter, const QStyleOptionViewItem& option) const override;
    QWidget* createEditor(QWidget* parent) const override;
    void showInEditor(QWidget& editor) const override;
    QVariant objectOfEditor(const QWidget& editor) const override;
    QString problemOfEditor(const QWidget&) const override { return {}; }

private:
    QStringList iItems;
    int iSelected = -1;
};

} // namespace leafcast
