// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace leafcast {

/// The integer that a text begins with: leading white space is skipped, an optional sign is taken,
/// then decimal digits up to the first other character. 0 when there is no digit; a number outside
/// 32 bits becomes the nearest limit.
qint32 integerValue(QStringView text);

} // namespace leafcast
