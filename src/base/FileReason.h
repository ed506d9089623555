// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Why a file can't be read, as a clause such as "it does not exist"; the other clause when nothing
/// of the file itself tells.
QString whyUnreadable(const QString& path, const QString& otherwise);

/// Why a file can't be written.
QString whyUnwritable(const QString& path);

} // namespace leafcast
