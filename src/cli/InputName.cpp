// SPDX-License-Identifier: MIT
#include "cli/InputName.h"

#include <QDir>
#include <QFileInfo>

namespace leafcast {

QString nameOfInput(const QString& path)
{
    const QFileInfo input(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return input.isDir() ? input.fileName() : input.completeBaseName();
}

} // namespace leafcast
