// SPDX-License-Identifier: MIT
#include "settings/WorkFolder.h"

#include "base/FileDescriptor.h"
#include "base/Log.h"
#include "base/SystemError.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast::WorkFolder {

namespace {

    constexpr mode_t sharedMode = 01777;

    bool isOwnedByUsOrRoot(const struct stat& folder)
    {
        return folder.st_uid == ::geteuid() || folder.st_uid == 0;
    }

    bool isWritableForOthers(const struct stat& folder)
    {
        return folder.st_mode & (S_IWGRP | S_IWOTH);
    }

    /// Only a folder is opened, never a link to one, and the descriptor pins what was looked at.
    std::optional<QString> problemOf(int folder)
    {
        struct stat status { };
        if (::fstat(folder, &status) != 0)
            return systemErrorText();
        if (status.st_uid == ::geteuid() && (status.st_mode & 07777) != sharedMode)
            return ::fchmod(folder, sharedMode) == 0 ? std::nullopt
                                                     : std::optional(systemErrorText());
        if (!isOwnedByUsOrRoot(status)) // whom the sticky bit does not bind
            return u"it belongs to another user, who could swap what lies in it"_s;
        if (isWritableForOthers(status) && !(status.st_mode & S_ISVTX))
            return u"every user could swap what lies in it"_s;
        return std::nullopt;
    }

    std::optional<QString> problemOfParent(const QByteArray& path)
    {
        if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return systemErrorText();
        const FileDescriptor folder(
            ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder.isOpen())
            return errno == ENOTDIR || errno == ELOOP ? u"it is a link or not a folder"_s
                                                      : systemErrorText();
        return problemOf(folder.get());
    }

    /// None when the system refuses, with errno set.
    std::optional<QString> makeUnique(QByteArray pattern)
    {
        if (!::mkdtemp(pattern.data()))
            return std::nullopt;
        return QFile::decodeName(pattern);
    }

} // namespace

QString make(const QString& name)
{
    const QByteArray parent = QFile::encodeName(u"/tmp/"_s + name);
    auto problem = problemOfParent(parent);
    if (!problem) {
        if (const auto made = makeUnique(parent + "/temp.XXXXXX"))
            return *made;
        problem = systemErrorText();
    }
    LOG_WARN("WorkFolder", u"can't work below %1: %2"_s.arg(QFile::decodeName(parent), *problem));

    const QByteArray besideParent = parent + "-XXXXXX";
    if (const auto made = makeUnique(besideParent))
        return *made;
    LOG_ERROR("WorkFolder",
        u"can't make a folder %1: %2"_s.arg(QFile::decodeName(besideParent), systemErrorText()));
    return QFile::decodeName(besideParent);
}

} // namespace leafcast::WorkFolder
