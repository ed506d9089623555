// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Whether the file is a .zip of a book or package, as BookArchive writes it, whatever its top
/// folder is called. Looks at names only.
bool isBookArchive(const QString& path);

} // namespace leafcast
