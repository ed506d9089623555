// SPDX-License-Identifier: MIT
#include "cli/ImageInput.h"

#include "base/FolderWalk.h"
#include "cli/ExitCode.h"
#include "cli/FileReason.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMap>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool hasImageExtension(const QString& path)
    {
        static const QStringList extensions{ u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s };
        return extensions.contains(QFileInfo(path).suffix().toLower());
    }

    // Other systems leave hidden companions of pictures behind, such as "._1.jpg".
    bool isPicture(const QFileInfo& entry)
    {
        return entry.isFile() && !entry.isHidden() && hasImageExtension(entry.fileName());
    }

    [[noreturn]] void refuse(const QString& path, const QString& reason)
    {
        throw CommandFailure(
            ExitCode::InputUnreadable, u"%1 can't be used: %2"_s.arg(path, reason));
    }

    QStringList imagesInFolder(const QString& folder)
    {
        QStringList paths;
        for (const QString& name : FolderWalk::entryNames(folder))
            // Not by QDir, which takes a name that begins with ":" for a path of its own.
            if (const QFileInfo entry(folder + u'/' + name); isPicture(entry))
                paths.append(entry.absoluteFilePath());
        return paths;
    }

    QStringList imagesOf(const QString& input)
    {
        if (!QFileInfo(input).isDir())
            return { QFileInfo(input).absoluteFilePath() };
        QStringList paths = imagesInFolder(input);
        if (paths.isEmpty())
            refuse(input,
                QFileInfo(input).isReadable() ? u"it holds no images (.jpg, .jpeg, .png, .gif)"_s
                                              : u"it may not be read"_s);
        return paths;
    }

    void requirePicture(const QString& path)
    {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        if (!reader.canRead())
            refuse(path, whyUnreadable(path, reader.errorString().toLower()));
    }

} // namespace

bool isImageInput(const QString& path)
{
    return QFileInfo(path).isDir() || hasImageExtension(path);
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

QStringList imagePaths(const QStringList& inputs)
{
    QStringList paths;
    for (const QString& input : inputs)
        paths.append(imagesOf(input));
    for (const QString& path : paths)
        requirePicture(path);
    return paths;
}

} // namespace leafcast
