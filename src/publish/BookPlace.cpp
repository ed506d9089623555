// SPDX-License-Identifier: MIT
#include "publish/BookPlace.h"

#include "base/FileSteps.h"
#include "base/FolderWalk.h"
#include "base/Sentences.h"
#include "publish/BookCheck.h"
#include "publish/BookRoom.h"

#include <QDir>
#include <QFileInfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qsizetype namesShown = 5;

    QString shortList(const QStringList& names)
    {
        const QString shown = names.mid(0, namesShown).join(u", "_s);
        const qsizetype hidden = names.size() - namesShown;
        return hidden > 0 ? u"%1 and %2 more"_s.arg(shown, QString::number(hidden)) : shown;
    }

    /// Both canonical.
    bool isInside(const QString& path, const QString& folder)
    {
        return path == folder || path.startsWith(folder + u'/');
    }

} // namespace

BookPlace::BookPlace(const QString& folder, Kind kind, const QString& packageName)
    : iFolder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
    , iKind(kind)
    , iPackagePath(iFolder + u'/' + packageName + u".app"_s)
{
}

QString BookPlace::replacementProblem() const
{
    return iKind == Kind::Folder ? folderProblem() : packageProblem();
}

QString BookPlace::folderProblem() const
{
    if (!QFileInfo(iFolder).isDir() || isBookFolder(iFolder))
        return {};
    const QStringList names = FolderWalk::entryNames(iFolder);
    if (names.isEmpty())
        return {};
    return Sentences::tr("the folder %1 holds no book but other things (%2), which the book would "
                         "lie among and may replace")
        .arg(iFolder, shortList(names));
}

QString BookPlace::packageProblem() const
{
    if (!FileSteps::exists(iPackagePath) || isBookPackage(iPackagePath))
        return {};
    const QStringList names = FolderWalk::entryNames(iPackagePath);
    return Sentences::tr("%1 is no book package and would be lost with all it holds%2")
        .arg(iPackagePath, names.isEmpty() ? QString() : u" (%1)"_s.arg(shortList(names)));
}

QString BookPlace::writingProblem() const
{
    const QString nearest = nearestExisting(iFolder);
    if (!QFileInfo(nearest).isDir())
        return Sentences::tr("the output folder %1 can't be made: %2 is no folder")
            .arg(iFolder, nearest);
    if (access(QFile::encodeName(nearest).constData(), W_OK | X_OK) != 0)
        return Sentences::tr("the output folder %1 can't be written to: %2")
            .arg(iFolder, qt_error_string());
    return {};
}

QString BookPlace::nameLengthProblem(const QString& name) const
{
    const qsizetype size = QFile::encodeName(name).size();
    const long limit
        = pathconf(QFile::encodeName(nearestExisting(iFolder)).constData(), _PC_NAME_MAX);
    if (limit <= 0 || size <= limit)
        return {};
    return Sentences::tr("the name %1 has %2 bytes, and in %3 there is room for %4")
        .arg(name, QString::number(size), iFolder, QString::number(limit));
}

QStringList BookPlace::replacedPaths() const
{
    if (iKind == Kind::Package)
        return { iPackagePath };
    return { iFolder + u"/files"_s, iFolder + u"/javascript"_s, iFolder + u"/style"_s };
}

QString BookPlace::inputProblem(const QStringList& inputs) const
{
    return inputProblem(inputs, replacedPaths());
}

QString BookPlace::inputProblem(const QStringList& inputs, const QStringList& replacedPaths)
{
    for (const QString& path : replacedPaths) {
        const QString replaced = QFileInfo(path).canonicalFilePath();
        if (replaced.isEmpty())
            continue;
        for (const QString& input : inputs)
            if (isInside(QFileInfo(input).canonicalFilePath(), replaced))
                return u"%1 lies in %2, which the book would replace; copy it elsewhere first"_s
                    .arg(input, path);
    }
    return {};
}

} // namespace leafcast
