// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Posted after each page whose text was read for the reader data, on the thread that writes the
/// book: "pageIndex" (position from 1) and "totalPage". An output that finds the text read already
/// posts none.
inline const QString ReaderDataProgressMSG = QStringLiteral("ReaderDataProgressMSG");

} // namespace leafcast
