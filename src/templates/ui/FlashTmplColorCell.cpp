// SPDX-License-Identifier: MIT
#include "templates/ui/FlashTmplColorCell.h"

#include "templates/ui/CellStyle.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int swatchSize = 15;
    constexpr int swatchLeft = 5;
    constexpr int gap = 6;

} // namespace

void FlashTmplColorCell::setColor2(const RGBColor& color)
{
    iColor = color;
    setTitle(colorToHexRGB(color).value_or(title()));
}

QString FlashTmplColorCell::shownText() const
{
    return QString(title()).replace(u"0x"_s, u"#"_s);
}

QString FlashTmplColorCell::normalized(const QString& typed) const
{
    const QString text = typed.trimmed();
    const bool hasPrefix = text.startsWith(u'#') || text.startsWith(u"0x"_s, Qt::CaseInsensitive);
    return text.isEmpty() || hasPrefix ? text : u'#' + text;
}

QRect FlashTmplColorCell::infoButtonRect(const QStyleOptionViewItem& option) const
{
    const QRect cell = option.rect;
    return CellStyle::placed(option,
        { cell.left() + swatchLeft, cell.center().y() - swatchSize / 2, swatchSize, swatchSize });
}

QRect FlashTmplColorCell::textRect(const QStyleOptionViewItem& option) const
{
    return CellStyle::placed(option, option.rect.adjusted(swatchLeft + swatchSize + gap, 0, 0, 0));
}

void FlashTmplColorCell::draw(QPainter& painter, const QStyleOptionViewItem& option) const
{
    const QRect swatch = infoButtonRect(option);
    painter.setPen(iMouseDownInInfoButton ? Qt::darkGray : Qt::gray);
    painter.setBrush(QColor::fromRgbF(iColor.red, iColor.green, iColor.blue));
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
    drawText(painter, option, Qt::ElideRight);
}

} // namespace leafcast
