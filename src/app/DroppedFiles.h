// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QMimeData;

namespace leafcast {

/// Paths of what can become a book: one PDF or several pictures. Empty for everything else.
QStringList droppedFiles(const QMimeData& data);

} // namespace leafcast
