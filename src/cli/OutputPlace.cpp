// SPDX-License-Identifier: MIT
#include "cli/OutputPlace.h"

#include "base/FileSteps.h"
#include "base/FolderWalk.h"
#include "cli/DiskRoom.h"
#include "cli/ExitCode.h"
#include "publish/BookCheck.h"

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

    [[noreturn]] void refuse(const QString& sentence)
    {
        throw CommandFailure(ExitCode::OutputNotWritable, sentence);
    }

} // namespace

OutputPlace::OutputPlace(
    const QString& folder, Kind kind, const QString& packageName, Packing packing)
    : iFolder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
    , iKind(kind)
    , iPackagePath(iFolder + u'/' + packageName + u".app"_s)
{
    if (folder.isEmpty())
        throw CommandFailure(ExitCode::WrongUsage, u"the output folder has no name"_s);
    if (packing == Packing::Zip)
        iArchive.emplace(
            (kind == Kind::Folder ? iFolder : iFolder + u'/' + packageName) + u".zip"_s);
}

void OutputPlace::requireReplaceable() const
{
    if (iKind == Kind::Folder)
        requireReplaceableFolder();
    else
        requireReplaceablePackage();
    if (iArchive)
        iArchive->requireReplaceable();
}

void OutputPlace::requireReplaceableFolder() const
{
    if (!QFileInfo(iFolder).isDir() || isBookFolder(iFolder))
        return;
    const QStringList names = FolderWalk::entryNames(iFolder);
    if (!names.isEmpty())
        refuse(
            u"the folder %1 holds no book but other things (%2), which the book would lie among and may replace; use --force to write there all the same"_s
                .arg(iFolder, shortList(names)));
}

void OutputPlace::requireReplaceablePackage() const
{
    if (!FileSteps::exists(iPackagePath) || isBookPackage(iPackagePath))
        return;
    const QStringList names = FolderWalk::entryNames(iPackagePath);
    refuse(
        u"%1 is no book package and would be lost with all it holds%2; use --force to replace it"_s
            .arg(iPackagePath, names.isEmpty() ? QString() : u" (%1)"_s.arg(shortList(names))));
}

void OutputPlace::requireWritable() const
{
    const QString nearest = nearestExisting(iFolder);
    if (!QFileInfo(nearest).isDir())
        refuse(u"the output folder %1 can't be made: %2 is no folder"_s.arg(iFolder, nearest));
    if (access(QFile::encodeName(nearest).constData(), W_OK | X_OK) != 0)
        refuse(u"the output folder %1 can't be written to: %2"_s.arg(iFolder, qt_error_string()));
    if (iArchive)
        iArchive->requireWritable();
}

void OutputPlace::requireNameFits(const QString& name) const
{
    const qsizetype size = QFile::encodeName(name).size();
    const long limit
        = pathconf(QFile::encodeName(nearestExisting(iFolder)).constData(), _PC_NAME_MAX);
    if (limit > 0 && size > limit)
        refuse(u"the name %1 has %2 bytes, and in %3 there is room for %4; give a shorter --name"_s
                   .arg(name, QString::number(size), iFolder, QString::number(limit)));
}

// Everything below these goes, or may go, while the book is written.
QStringList OutputPlace::replacedPaths() const
{
    QStringList paths = iKind == Kind::Package
        ? QStringList{ iPackagePath }
        : QStringList{ iFolder + u"/files"_s, iFolder + u"/javascript"_s, iFolder + u"/style"_s };
    if (iArchive)
        paths.append(iArchive->path());
    return paths;
}

void OutputPlace::requireOutside(const QStringList& inputs) const
{
    for (const QString& path : replacedPaths()) {
        const QString replaced = QFileInfo(path).canonicalFilePath();
        if (replaced.isEmpty())
            continue;
        for (const QString& input : inputs)
            if (isInside(QFileInfo(input).canonicalFilePath(), replaced))
                refuse(
                    u"%1 lies in %2, which the book would replace; copy it elsewhere first"_s.arg(
                        input, path));
    }
}

void OutputPlace::makeFolder() const
{
    if (!FileSteps::makeFolders(iFolder))
        refuse(u"the output folder %1 can't be made; the log (--verbose) tells why"_s.arg(iFolder));
}

} // namespace leafcast
