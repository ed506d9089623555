// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

/// Sizes of pictures, read from their headers alone.
namespace leafcast::ImageHeader {

/// As browsers show the picture, which a camera may have marked as lying on its side. 0 x 0 for a
/// file that is missing or no picture.
QSize sizeInPixels(const QString& path);

/// Pixels * 72 / density, truncated. The density is that of a JFIF or PNG header; 72 dpi where the
/// file names none.
QSize sizeInPoints(const QString& path);

} // namespace leafcast::ImageHeader
