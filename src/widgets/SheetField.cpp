// SPDX-License-Identifier: MIT
#include "widgets/SheetField.h"

#include "widgets/ProblemLabel.h"

#include <QStyleOptionFrame>
#include <QStylePainter>

namespace leafcast {

SheetField::SheetField(Elide elide, QWidget* parent)
    : QLineEdit(parent)
    , iElide(elide)
{
    if (elide == Elide::Middle)
        connect(this, &QLineEdit::textChanged, this, &QWidget::setToolTip);
}

void SheetField::setWrong(bool isWrong)
{
    iIsWrong = isWrong;
    update();
}

void SheetField::paintEvent(QPaintEvent* event)
{
    const bool isTooLong = fontMetrics().horizontalAdvance(text()) > textArea().width();
    if (iElide == Elide::Middle && isTooLong && !hasFocus())
        paintElided();
    else
        QLineEdit::paintEvent(event);
    if (iIsWrong)
        paintFrame();
}

QRect SheetField::textArea() const
{
    constexpr int innerMargin = 2; // as the base class has it beside its text
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .adjusted(innerMargin, 0, -innerMargin, 0);
}

void SheetField::paintElided()
{
    QStylePainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
    painter.setPen(option.palette.color(QPalette::Text));
    painter.drawText(textArea(), Qt::AlignVCenter | Qt::AlignLeft,
        fontMetrics().elidedText(text(), Qt::ElideMiddle, textArea().width()));
}

void SheetField::paintFrame()
{
    constexpr qreal width = 1.5;
    constexpr qreal radius = 2.5;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(problemColor(palette()), width));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
}

} // namespace leafcast
