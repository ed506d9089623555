// SPDX-License-Identifier: MIT
#include "widgets/FileOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace leafcast {

void openWithDesktop(const QString& path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace leafcast
