// SPDX-License-Identifier: MIT
#include "settings/WorkFolder.h"

#include "base/Log.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast::WorkFolder {

namespace {

    constexpr mode_t sharedMode = 01777;

    QString systemError()
    {
        return QString::fromLocal8Bit(std::strerror(errno));
    }

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
            return systemError();
        if (status.st_uid == ::geteuid() && (status.st_mode & 07777) != sharedMode)
            return ::fchmod(folder, sharedMode) == 0 ? std::nullopt : std::optional(systemError());
        if (status.st_mode & S_ISVTX)
            return std::nullopt;
        if (!isOwnedByUsOrRoot(status))
            return u"it belongs to another user, who could swap what lies in it"_s;
        if (isWritableForOthers(status))
            return u"every user could swap what lies in it"_s;
        return std::nullopt;
    }

    std::optional<QString> problemOfParent(const QByteArray& path)
    {
        if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return systemError();
        const int folder
            = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (folder < 0)
            return errno == ENOTDIR || errno == ELOOP ? u"it is a link or not a folder"_s
                                                      : systemError();
        auto problem = problemOf(folder);
        ::close(folder);
        return problem;
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
        problem = systemError();
    }
    LOG_WARN("WorkFolder", u"can't work below %1: %2"_s.arg(QFile::decodeName(parent), *problem));

    const QByteArray besideParent = parent + "-XXXXXX";
    if (const auto made = makeUnique(besideParent))
        return *made;
    LOG_ERROR("WorkFolder",
        u"can't make a folder %1: %2"_s.arg(QFile::decodeName(besideParent), systemError()));
    return QFile::decodeName(besideParent);
}

} // namespace leafcast::WorkFolder
