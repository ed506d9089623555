// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

namespace leafcast {

/// "6.6 MB"
inline QString dataSize(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace leafcast
