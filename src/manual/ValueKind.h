// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace leafcast {

/// What a shell can offer for a value.
enum class ValueKind { Anything, File, Folder, Quality, Template, Style };

/// By the word that stands for the value in the help, such as "FILE".
ValueKind valueKind(const QString& placeholder);

/// The names of the quality levels, best first.
QStringList qualityNames();

} // namespace leafcast
