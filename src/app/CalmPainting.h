// SPDX-License-Identifier: MIT
#pragma once

#include <QStyleOption>

class QPainter;

/// How each control of CalmStyle is painted.
namespace leafcast::CalmPainting {

inline constexpr int radius = 5;

/// The first colour with a share of the second in it.
QColor mixed(const QColor& most, const QColor& some, qreal share);

void button(QPainter& painter, const QStyleOptionButton& option);
void toolButton(QPainter& painter, const QStyleOption& option);
/// With a line below it.
void toolBar(QPainter& painter, const QStyleOption& option);
void field(QPainter& painter, const QStyleOption& option);
void comboBox(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow);
void checkBox(QPainter& painter, const QStyleOption& option);
void radioButton(QPainter& painter, const QStyleOption& option);
/// Round at the ends of its row.
void selection(QPainter& painter, const QStyleOptionViewItem& option);
/// Nothing but the arrow of what can be opened.
void branch(QPainter& painter, const QStyleOption& option);
/// The arrow of a list that opens downwards, or of a branch.
void chevron(QPainter& painter, const QRect& place, Qt::ArrowType direction, const QColor& color);
void scrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle,
    QPalette::ColorRole surface);
/// A heading below a line.
void sectionTitle(QPainter& painter, const QStyleOptionGroupBox& option, const QRect& title);
void progressGroove(QPainter& painter, const QStyleOption& option);
void progress(QPainter& painter, const QStyleOptionProgressBar& option);
/// The slim bar inside the rectangle of the control.
QRect progressBar(const QRect& control);
void focusRing(QPainter& painter, const QStyleOption& option);

} // namespace leafcast::CalmPainting
