// SPDX-License-Identifier: MIT
#include "pages/ImageFiles.h"

#include "base/FileReason.h"
#include "base/FolderWalk.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMap>

using namespace Qt::StringLiterals;

namespace leafcast::ImageFiles {

namespace {

    // Other systems leave hidden companions of pictures behind, such as "._1.jpg".
    bool isPicture(const QFileInfo& entry)
    {
        return entry.isFile() && !entry.isHidden() && isImage(entry.fileName());
    }

} // namespace

bool isImage(const QString& path)
{
    static const QStringList extensions{ u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s };
    return extensions.contains(QFileInfo(path).suffix().toLower());
}

QStringList inFolder(const QString& folder)
{
    QStringList paths;
    for (const QString& name : FolderWalk::entryNames(folder))
        // Not by QDir, which takes a name that begins with ":" for a path of its own.
        if (const QFileInfo entry(folder + u'/' + name); isPicture(entry))
            paths.append(entry.absoluteFilePath());
    return paths;
}

QStringList from(const QStringList& filesAndFolders)
{
    QStringList paths;
    for (const QString& path : filesAndFolders)
        if (const QFileInfo entry(path); entry.isDir())
            paths.append(inFolder(path));
        else
            paths.append(entry.absoluteFilePath());
    return paths;
}

QString problem(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() ? QString() : whyUnreadable(path, reader.errorString().toLower());
}

bool isCutOff(const QString& path)
{
    static const QMap<QByteArray, QByteArray> endMarks{ { "jpeg", "\xFF\xD9" }, { "png", "IEND" } };
    // Some programs append data of their own.
    constexpr qint64 tailSize = 16384;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray format = QImageReader::imageFormat(&file);
    file.seek(std::max<qint64>(0, file.size() - tailSize));
    return !file.readAll().contains(endMarks.value(format));
}

} // namespace leafcast::ImageFiles
