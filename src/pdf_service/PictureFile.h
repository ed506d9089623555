// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace leafcast::service {

/// Writes a file whole or not at all: to a hidden one beside it, which then takes its place. It is
/// not flushed to the disk, which would cost more than drawing the page; pictures can be drawn
/// again. Throws ServiceError (Write).
void writePicture(const QString& path, const std::vector<unsigned char>& bytes);

} // namespace leafcast::service
