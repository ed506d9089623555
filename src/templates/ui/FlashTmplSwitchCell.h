// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ui/FlashTmplCell.h"

namespace leafcast {

/// A check box with the property's caption; a click or the space bar changes it.
class FlashTmplSwitchCell : public FlashTmplCell {
public:
    /// Off until show().
    using FlashTmplCell::FlashTmplCell;

    QString caption() const;
    bool isOn() const { return iIsOn; }

    void show(const FlashTemplateProperty& item) override;
    QString shownText() const override;
    QRect infoButtonRect(const QStyleOptionViewItem& option) const override;
    void draw(QPainter& painter, const QStyleOptionViewItem& option) const override;
    QWidget* createEditor(QWidget*) const override { return nullptr; }

private:
    bool iIsOn = false;
};

} // namespace leafcast
