// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ColorCategory.h"
#include "templates/ui/FlashTmplCell.h"

namespace leafcast {

/// A swatch, a click on which opens the colour dialog, and beside it the colour as "#1a2b3c", which
/// is how people know it; the title is "0x1a2b3c".
class FlashTmplColorCell : public FlashTmplCell {
public:
    using FlashTmplCell::FlashTmplCell;

    const RGBColor& color() const { return iColor; }
    void setColor(const RGBColor& color) { iColor = color; }
    /// Sets the title to the colour's text too.
    void setColor2(const RGBColor& color);

    QString shownText() const override;
    QRect infoButtonRect(const QStyleOptionViewItem& option) const override;
    QRect textRect(const QStyleOptionViewItem& option) const override;
    void draw(QPainter& painter, const QStyleOptionViewItem& option) const override;

protected:
    QString editedText() const override { return shownText(); }
    QString normalized(const QString& typed) const override;

private:
    RGBColor iColor{ 1, 0, 0, 1 };
};

} // namespace leafcast
