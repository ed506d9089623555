// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace leafcast {

/// True for a folder, or a file with the extension of a picture that browsers show.
bool isImageInput(const QString& path);

/// Absolute paths of the pages: files as given, folders by their pictures in natural order. Throws
/// CommandFailure for a file that is missing or no picture, and for a folder without any.
QStringList imagePaths(const QStringList& inputs);

} // namespace leafcast
