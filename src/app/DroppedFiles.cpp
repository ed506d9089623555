// SPDX-License-Identifier: MIT
#include "app/DroppedFiles.h"

#include "pages/ImageFiles.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool isUsable(const QFileInfo& file)
    {
        return file.isDir() || file.suffix().compare(u"pdf"_s, Qt::CaseInsensitive) == 0
            || ImageFiles::isImage(file.filePath());
    }

} // namespace

QStringList droppedFiles(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile() && isUsable(QFileInfo(url.toLocalFile())))
            files.append(url.toLocalFile());
    return files;
}

} // namespace leafcast
