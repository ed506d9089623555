// SPDX-License-Identifier: MIT
#include "base/FolderCopy.h"

#include "base/FileCopy.h"
#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/SystemError.h"

#include <QDir>
#include <QFile>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool isAtOrBelow(const QString& path, const QString& folder)
    {
        return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
    }

} // namespace

bool FolderCopy::placeAt(const QString& destination)
{
    if (!QFileInfo(iSource).isDir())
        return failed("copy the folder", iSource, u"it is not a folder"_s);
    if (FileSteps::exists(destination))
        return failed(
            "copy the folder", iSource, u"to %1: something lies there"_s.arg(destination));
    const QFileInfo placed(QDir::cleanPath(destination));
    const QString parent = QFileInfo(placed.path()).canonicalFilePath();
    if (isAtOrBelow(parent, QFileInfo(iSource).canonicalFilePath()))
        return failed("copy the folder", iSource, u"to %1: that is inside it"_s.arg(destination));
    iCanonicalDestination = QDir(parent).filePath(placed.fileName());
    return copyFolder(QFileInfo(iSource), destination);
}

bool FolderCopy::copyFolder(const QFileInfo& folder, const QString& destination)
{
    if (!folder.isReadable() || !folder.isExecutable()) // would look empty
        return failed("copy the folder", folder.filePath(), u"it may not be read"_s);
    constexpr mode_t asTheUserWants = 0777;
    if (::mkdir(QFile::encodeName(destination).constData(), asTheUserWants) != 0)
        return failed("make the folder", destination, systemErrorText());

    iBranch.append(folder.canonicalFilePath());
    const auto regular = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    bool complete = true;
    for (const QFileInfo& entry : QDir(folder.filePath()).entryInfoList(regular, QDir::Name))
        complete &= copyEntry(entry, destination + u'/' + entry.fileName());
    iBranch.removeLast();
    return complete;
}

bool FolderCopy::copyEntry(const QFileInfo& entry, const QString& destination)
{
    if (entry.isDir()) {
        if (!leadsBack(entry.canonicalFilePath()))
            return copyFolder(entry, destination);
        LOG_WARN("FileSteps",
            u"left %1 out of the copy: it leads back to what is being copied"_s.arg(
                entry.filePath()));
        return true;
    }
    FileCopy copy(entry.filePath());
    return copy.placeAt(destination, FileCopy::WhenTaken::Fail)
        || failed("copy", entry.filePath(), u"to %1: %2"_s.arg(destination, copy.error()));
}

bool FolderCopy::leadsBack(const QString& canonicalFolder) const
{
    return iBranch.contains(canonicalFolder) || isAtOrBelow(canonicalFolder, iCanonicalDestination);
}

bool FolderCopy::failed(const char* what, const QString& path, const QString& why)
{
    const QString text = u"can't %1 %2: %3"_s.arg(QString::fromLatin1(what), path, why);
    LOG_WARN("FileSteps", text);
    if (iError.isEmpty())
        iError = text;
    return false;
}

} // namespace leafcast
