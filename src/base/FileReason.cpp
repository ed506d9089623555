// SPDX-License-Identifier: MIT
#include "base/FileReason.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

QString whyUnreadable(const QString& path, const QString& otherwise)
{
    const QFileInfo info(path);
    if (!info.exists())
        return u"it does not exist"_s;
    if (!info.isReadable())
        return u"it may not be read"_s;
    return info.isDir() ? u"it is a folder"_s : otherwise;
}

QString whyUnwritable(const QString& path)
{
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        return u"the folder %1 does not exist"_s.arg(folder.filePath());
    if (QFileInfo(path).isDir())
        return u"it is a folder"_s;
    return folder.isWritable() ? u"the disk is full or failing"_s : u"its folder is read-only"_s;
}

} // namespace leafcast
