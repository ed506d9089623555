// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// What a book is called after its input: the file's or the folder's own name without the
/// extension.
QString nameOfInput(const QString& path);

} // namespace leafcast
