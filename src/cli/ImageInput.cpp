// SPDX-License-Identifier: MIT
#include "cli/ImageInput.h"

#include "base/FolderWalk.h"
#include "cli/ExitCode.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

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

    QStringList imagesInFolder(const QString& folder)
    {
        QStringList paths;
        for (const QString& name : FolderWalk::entryNames(folder))
            // Not by QDir, which takes a name that begins with ":" for a path of its own.
            if (const QFileInfo entry(folder + u'/' + name); isPicture(entry))
                paths.append(entry.absoluteFilePath());
        return paths;
    }

    void requirePicture(const QString& path)
    {
        if (!QFileInfo::exists(path))
            throw CommandFailure(
                ExitCode::InputUnreadable, u"the image %1 does not exist"_s.arg(path));
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        if (!reader.canRead())
            throw CommandFailure(ExitCode::InputUnreadable,
                u"the image %1 can't be read: %2"_s.arg(path, reader.errorString().toLower()));
    }

} // namespace

bool isImageInput(const QString& path)
{
    return QFileInfo(path).isDir() || hasImageExtension(path);
}

QStringList imagePaths(const QStringList& inputs)
{
    QStringList paths;
    for (const QString& input : inputs)
        paths.append(QFileInfo(input).isDir() ? imagesInFolder(input)
                                              : QStringList{ QFileInfo(input).absoluteFilePath() });
    for (const QString& path : paths)
        requirePicture(path);
    if (paths.isEmpty())
        throw CommandFailure(ExitCode::InputUnreadable,
            u"%1 holds no images (.jpg, .jpeg, .png, .gif)"_s.arg(inputs.join(u", "_s)));
    return paths;
}

} // namespace leafcast
