// SPDX-License-Identifier: MIT
#include "app/SupportFolder.h"

#include <QStandardPaths>

namespace leafcast {

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

} // namespace leafcast
