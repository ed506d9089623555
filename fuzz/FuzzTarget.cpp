// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"

#include <QDir>
#include <QFile>

namespace leafcast::fuzz {

QString folder()
{
    static const QTemporaryDir directory;
    return directory.path();
}

QString fileWith(const QByteArray& content, const QString& name)
{
    const QString path = QDir(folder()).filePath(name);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
        "the input can be written to a file");
    return path;
}

} // namespace leafcast::fuzz
