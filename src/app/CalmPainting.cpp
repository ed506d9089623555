// SPDX-License-Identifier: MIT
#include "app/CalmPainting.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace leafcast::CalmPainting {

namespace {

    constexpr qreal ringWidth = 2;
    constexpr qreal tickWidth = 1.7;
    constexpr qreal hoverShare = 0.05;
    constexpr qreal pressShare = 0.12;

    bool has(const QStyleOption& option, QStyle::StateFlag flag)
    {
        return option.state.testFlag(flag);
    }

    // Lines of one pixel lie in the middle of it.
    QRectF inside(const QRect& rect, qreal lineWidth = 1)
    {
        const qreal half = lineWidth / 2;
        return QRectF(rect).adjusted(half, half, -half, -half);
    }

    void panel(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge)
    {
        painter.setPen(edge);
        painter.setBrush(fill);
        painter.drawRoundedRect(inside(rect), radius, radius);
    }

    void ring(QPainter& painter, const QRect& rect, const QColor& color)
    {
        painter.setPen(QPen(color, ringWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(inside(rect, ringWidth), radius - 1, radius - 1);
    }

    /// A surface as the mouse makes it: a little darker on light, a little lighter on dark.
    QColor touched(const QStyleOption& option, const QColor& surface)
    {
        const QColor ink = option.palette.color(QPalette::WindowText);
        if (!has(option, QStyle::State_Enabled))
            return surface;
        if (has(option, QStyle::State_Sunken) || has(option, QStyle::State_On))
            return mixed(surface, ink, pressShare);
        return has(option, QStyle::State_MouseOver) ? mixed(surface, ink, hoverShare) : surface;
    }

    QColor surfaceOf(const QStyleOption& option, QPalette::ColorRole role)
    {
        return option.palette.color(has(option, QStyle::State_Enabled) ? role : QPalette::Window);
    }

    bool isChosen(const QStyleOption& option)
    {
        return has(option, QStyle::State_On) || has(option, QStyle::State_NoChange);
    }

    /// The frame of a check box or a radio button, and what it is filled with.
    void prepareIndicator(QPainter& painter, const QStyleOption& option)
    {
        const QPalette& palette = option.palette;
        const QColor accent = palette.color(QPalette::Highlight);
        const QColor edge
            = mixed(palette.color(QPalette::Mid), palette.color(QPalette::WindowText), 0.35);
        painter.setPen(isChosen(option) ? accent : edge);
        painter.setBrush(isChosen(option) ? accent : surfaceOf(option, QPalette::Base));
    }

    /// Clockwise, from an arrow that points down.
    qreal degreesOf(Qt::ArrowType direction)
    {
        switch (direction) {
        case Qt::UpArrow:
            return 180;
        case Qt::LeftArrow:
            return 90;
        case Qt::RightArrow:
            return -90;
        default:
            return 0;
        }
    }

} // namespace

QColor mixed(const QColor& most, const QColor& some, qreal share)
{
    const auto part = [share](float a, float b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(part(most.redF(), some.redF()), part(most.greenF(), some.greenF()),
        part(most.blueF(), some.blueF()));
}

void button(QPainter& painter, const QStyleOptionButton& option)
{
    const bool isMain = option.features.testFlag(QStyleOptionButton::DefaultButton)
        && has(option, QStyle::State_Enabled);
    const bool isFocused
        = has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange);
    const QPalette& palette = option.palette;
    const QColor surface = touched(
        option, isMain ? palette.color(QPalette::Highlight) : surfaceOf(option, QPalette::Button));
    panel(painter, option.rect, surface, isMain ? surface : palette.color(QPalette::Mid));
    if (isFocused && isMain)
        ring(painter, option.rect.adjusted(2, 2, -2, -2), palette.color(QPalette::HighlightedText));
    else if (isFocused)
        ring(painter, option.rect, palette.color(QPalette::Highlight));
}

void toolButton(QPainter& painter, const QStyleOption& option)
{
    const QColor surface = option.palette.color(QPalette::Window);
    QStyleOption touch = option;
    // One that is only seen when it is touched does not show what it opened either.
    if (has(option, QStyle::State_AutoRaise))
        touch.state.setFlag(QStyle::State_On, false);
    const QColor fill = touched(touch, surface);
    if (fill == surface)
        return;
    panel(painter, option.rect, fill, fill);
}

void toolBar(QPainter& painter, const QStyleOption& option)
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    const QRect line(option.rect.left(), option.rect.bottom(), option.rect.width(), 1);
    painter.fillRect(line, option.palette.color(QPalette::Mid));
}

void field(QPainter& painter, const QStyleOption& option)
{
    panel(painter, option.rect, surfaceOf(option, QPalette::Base),
        option.palette.color(QPalette::Mid));
    if (has(option, QStyle::State_HasFocus))
        ring(painter, option.rect, option.palette.color(QPalette::Highlight));
}

void comboBox(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow)
{
    const QPalette& palette = option.palette;
    panel(painter, option.rect, touched(option, surfaceOf(option, QPalette::Button)),
        palette.color(QPalette::Mid));
    if (has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange))
        ring(painter, option.rect, palette.color(QPalette::Highlight));
    chevron(painter, arrow, Qt::DownArrow, palette.color(QPalette::ButtonText));
}

void checkBox(QPainter& painter, const QStyleOption& option)
{
    prepareIndicator(painter, option);
    const QRectF box = inside(option.rect);
    painter.drawRoundedRect(box, 3.5, 3.5);
    if (!isChosen(option))
        return;
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), tickWidth, Qt::SolidLine,
        Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    if (has(option, QStyle::State_On))
        painter.drawPolyline(QPolygonF{ at(0.26, 0.54), at(0.43, 0.70), at(0.75, 0.32) });
    else
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
}

void radioButton(QPainter& painter, const QStyleOption& option)
{
    prepareIndicator(painter, option);
    const QRectF circle = inside(option.rect);
    painter.drawEllipse(circle);
    if (!isChosen(option))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(circle.center(), circle.width() * 0.19, circle.width() * 0.19);
}

void selection(QPainter& painter, const QStyleOptionViewItem& option)
{
    const bool isRightToLeft = option.direction == Qt::RightToLeft;
    const auto position = option.viewItemPosition;
    const bool isWhole
        = position == QStyleOptionViewItem::OnlyOne || position == QStyleOptionViewItem::Invalid;
    const bool begins = isWhole || position == QStyleOptionViewItem::Beginning;
    const bool ends = isWhole || position == QStyleOptionViewItem::End;
    QRectF rect = option.rect;
    painter.save();
    painter.setClipRect(rect);
    // The round corners of an end that goes on lie outside.
    if (!(isRightToLeft ? ends : begins))
        rect.setLeft(rect.left() - radius);
    if (!(isRightToLeft ? begins : ends))
        rect.setRight(rect.right() + radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(rect, radius, radius);
    painter.restore();
}

void branch(QPainter& painter, const QStyleOption& option)
{
    if (!has(option, QStyle::State_Children))
        return;
    const Qt::ArrowType closed
        = option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    chevron(painter, option.rect, has(option, QStyle::State_Open) ? Qt::DownArrow : closed,
        option.palette.color(QPalette::PlaceholderText));
}

void chevron(QPainter& painter, const QRect& place, Qt::ArrowType direction, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.rotate(degreesOf(direction));
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{ { -3.5, -1.75 }, { 0, 1.75 }, { 3.5, -1.75 } });
    painter.restore();
}

void sectionTitle(QPainter& painter, const QStyleOptionGroupBox& option, const QRect& title)
{
    const QPalette& palette = option.palette;
    painter.fillRect(
        QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)), palette.color(QPalette::Mid));
    QFont font = painter.font();
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(title, Qt::AlignLeading | Qt::AlignVCenter,
        QFontMetrics(font).elidedText(option.text, Qt::ElideRight, title.width()));
}

void scrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle,
    QPalette::ColorRole surface)
{
    constexpr int gap = 3;
    const QPalette& palette = option.palette;
    painter.fillRect(option.rect, palette.color(surface));
    const bool isHeld = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(
        palette.color(QPalette::Mid), palette.color(QPalette::WindowText), isHeld ? 0.35 : 0.1));
    const QRectF bar = QRectF(handle).adjusted(gap, gap, -gap, -gap);
    const qreal round = std::min(bar.width(), bar.height()) / 2;
    painter.drawRoundedRect(bar, round, round);
}

QRect progressBar(const QRect& control)
{
    constexpr int thickness = 6;
    return { control.left(), control.center().y() - thickness / 2, control.width(), thickness };
}

void progressGroove(QPainter& painter, const QStyleOption& option)
{
    const QRectF bar = progressBar(option.rect);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Mid));
    painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);
}

void progress(QPainter& painter, const QStyleOptionProgressBar& option)
{
    QRectF bar = progressBar(option.rect);
    const qreal share
        = qreal(option.progress - option.minimum) / std::max(option.maximum - option.minimum, 1);
    const qreal length = std::max(bar.width() * share, bar.height());
    if (option.direction == Qt::RightToLeft)
        bar.setLeft(bar.right() - length);
    else
        bar.setWidth(length);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);
}

void focusRing(QPainter& painter, const QStyleOption& option)
{
    if (has(option, QStyle::State_KeyboardFocusChange))
        ring(painter, option.rect, option.palette.color(QPalette::Highlight));
}

} // namespace leafcast::CalmPainting
