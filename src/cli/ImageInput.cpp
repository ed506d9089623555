// SPDX-License-Identifier: MIT
#include "cli/ImageInput.h"

#include "cli/ExitCode.h"
#include "pages/ImageFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    [[noreturn]] void refuse(const QString& path, const QString& reason)
    {
        throw CommandFailure(
            ExitCode::InputUnreadable, u"%1 can't be used: %2"_s.arg(path, reason));
    }

    QStringList imagesOf(const QString& input)
    {
        const QStringList paths = ImageFiles::from({ input });
        if (paths.isEmpty())
            refuse(input,
                QFileInfo(input).isReadable() ? u"it holds no images (.jpg, .jpeg, .png, .gif)"_s
                                              : u"it may not be read"_s);
        return paths;
    }

} // namespace

bool isImageInput(const QString& path)
{
    return QFileInfo(path).isDir() || ImageFiles::isImage(path);
}

QStringList imagePaths(const QStringList& inputs)
{
    QStringList paths;
    for (const QString& input : inputs)
        paths.append(imagesOf(input));
    for (const QString& path : paths)
        if (const QString reason = ImageFiles::problem(path); !reason.isEmpty())
            refuse(path, reason);
    return paths;
}

} // namespace leafcast
