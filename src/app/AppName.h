// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Title of the main window, and name of the log file.
inline const QString APP_NAME = QStringLiteral("Leafcast for iPad (Mac)");

} // namespace leafcast
