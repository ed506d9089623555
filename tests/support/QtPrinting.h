// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <QString>

/// How GoogleTest shows strings of Qt when an expectation fails; it finds this by its name and
/// place.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
