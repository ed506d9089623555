// SPDX-License-Identifier: MIT
#include "base/FileReason.h"

#include "base/Sentences.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

QString whyUnreadable(const QString& path, const QString& otherwise)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Sentences::tr("it does not exist");
    if (!info.isReadable())
        return Sentences::tr("it may not be read");
    return info.isDir() ? Sentences::tr("it is a folder") : otherwise;
}

QString whyUnwritable(const QString& path)
{
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        return Sentences::tr("the folder %1 does not exist").arg(folder.filePath());
    if (QFileInfo(path).isDir())
        return Sentences::tr("it is a folder");
    return folder.isWritable() ? Sentences::tr("the disk is full or failing")
                               : Sentences::tr("its folder is read-only");
}

} // namespace leafcast
