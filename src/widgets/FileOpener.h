// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QString>

namespace leafcast {

/// Shows a file or folder to the user. Dialogs take one, so that tests see what they open.
using FileOpener = std::function<void(const QString& path)>;

/// With the program that the desktop uses for it.
void openWithDesktop(const QString& path);

} // namespace leafcast
