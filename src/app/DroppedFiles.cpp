// SPDX-License-Identifier: MIT
#include "app/DroppedFiles.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace leafcast {

QStringList droppedFiles(const QMimeData& data)
{
    static const QStringList types = { u"pdf"_s, u"jpg"_s, u"jpeg"_s, u"png"_s };
    QStringList files;
    for (const QUrl& url : data.urls())
        if (types.contains(QFileInfo(url.toLocalFile()).suffix().toLower())
            || QFileInfo(url.toLocalFile()).isDir())
            files.append(url.toLocalFile());
    return files;
}

} // namespace leafcast
