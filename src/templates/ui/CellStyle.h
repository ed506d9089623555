// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionViewItem>

/// What cells draw with, from the options of the row that they stand in.
namespace leafcast::CellStyle {

inline QStyle& of(const QStyleOptionViewItem& option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

inline QPalette palette(const QStyleOptionViewItem& option)
{
    QPalette palette = option.palette;
    const bool active = option.state & QStyle::State_Active;
    palette.setCurrentColorGroup(active ? QPalette::Active : QPalette::Inactive);
    return palette;
}

inline bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

inline QPalette::ColorRole textRole(const QStyleOptionViewItem& option)
{
    return option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
}

/// A rectangle of left-to-right coordinates on its side of the row.
inline QRect placed(const QStyleOptionViewItem& option, const QRect& rect)
{
    return QStyle::visualRect(option.direction, option.rect, rect);
}

/// The option of a control inside the row.
template <typename Option> Option controlOption(const QStyleOptionViewItem& row, const QRect& rect)
{
    Option control;
    control.rect = rect;
    control.direction = row.direction;
    control.palette = palette(row);
    control.fontMetrics = row.fontMetrics;
    control.state = row.state & (QStyle::State_Enabled | QStyle::State_Active);
    return control;
}

} // namespace leafcast::CellStyle
