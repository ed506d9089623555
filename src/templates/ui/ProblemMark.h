// SPDX-License-Identifier: MIT
#pragma once

#include "templates/ui/CellStyle.h"

#include <QWidget>

/// How the property editor shows what can't be used: red, and in words beside it.
namespace leafcast::ProblemMark {

/// Red that can be read on the application's base colour, light or dark.
inline QColor color()
{
    const bool isDark = CellStyle::isDark(QApplication::palette());
    return isDark ? QColor(255, 138, 128) : QColor(179, 38, 30);
}

/// Marks an editor whose text is no value; an empty problem ends that.
inline void show(QWidget& editor, const QString& problem)
{
    QPalette palette;
    if (!problem.isEmpty())
        palette.setColor(QPalette::Text, color());
    editor.setPalette(palette);
    editor.setToolTip(problem);
}

} // namespace leafcast::ProblemMark
