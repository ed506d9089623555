// SPDX-License-Identifier: MIT
#include "cli/OutputPlace.h"

#include "base/FileSteps.h"
#include "base/FolderWalk.h"
#include "cli/ExitCode.h"
#include "publish/BookCheck.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qsizetype namesShown = 5;

    QString shortList(const QStringList& names)
    {
        const QString shown = names.mid(0, namesShown).join(u", "_s);
        const qsizetype hidden = names.size() - namesShown;
        return hidden > 0 ? u"%1 and %2 more"_s.arg(shown).arg(hidden) : shown;
    }

    qint64 sizeOfFilesIn(const QString& folder)
    {
        qint64 size = 0;
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
            size += file.size();
        return size;
    }

    QString existingFolderAbove(const QString& path)
    {
        QString folder = QFileInfo(path).absoluteFilePath();
        while (!QFileInfo::exists(folder))
            folder = QFileInfo(folder).path();
        return folder;
    }

    QString dataSize(qint64 bytes)
    {
        return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
    }

    [[noreturn]] void refuse(const QString& sentence)
    {
        throw CommandFailure(ExitCode::OutputNotWritable, sentence);
    }

} // namespace

OutputPlace::OutputPlace(const QString& folder, Kind kind, const QString& packageName)
    : iFolder(QDir::cleanPath(folder))
    , iKind(kind)
    , iPackagePath(QDir(iFolder).filePath(packageName + u".app"_s))
{
}

void OutputPlace::requireReplaceable() const
{
    if (iKind == Kind::Folder)
        requireReplaceableFolder();
    else
        requireReplaceablePackage();
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

void OutputPlace::prepare() const
{
    if (QFileInfo(iFolder).exists() && !QFileInfo(iFolder).isDir())
        refuse(u"the output folder %1 can't be made: a file lies there"_s.arg(iFolder));
    if (!FileSteps::makeFolders(iFolder))
        refuse(u"the output folder %1 can't be made"_s.arg(iFolder));
    QTemporaryFile probe(QDir(iFolder).filePath(u".leafcast-XXXXXX"_s));
    if (!probe.open())
        refuse(u"the output folder %1 can't be written to: %2"_s.arg(iFolder, probe.errorString()));
}

QString OutputPlace::bookFolder() const
{
    return iKind == Kind::Folder ? iFolder : iPackagePath + u"/Contents/Resources"_s;
}

void OutputPlace::requireRoomFor(qint64 pictureBytes) const
{
    const qint64 needed = pictureBytes - sizeOfFilesIn(bookFolder() + u"/files/page"_s);
    const qint64 available = QStorageInfo(existingFolderAbove(iFolder)).bytesAvailable();
    if (needed > available)
        refuse(u"there is no room for the book in %1: it needs %2 more, and the disk has %3 left"_s
                   .arg(iFolder, dataSize(needed), dataSize(available)));
}

} // namespace leafcast
