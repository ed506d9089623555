// SPDX-License-Identifier: MIT
#include "cli/ArchivePlace.h"

#include "base/FileSteps.h"
#include "cli/ExitCode.h"
#include "publish/BookArchiveCheck.h"
#include "publish/BookRoom.h"

#include <QFile>
#include <QFileInfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qsizetype temporarySuffix = 7; // "book.zip.XXXXXX", while it is written

    [[noreturn]] void refuse(const QString& sentence)
    {
        throw CommandFailure(ExitCode::OutputNotWritable, sentence);
    }

    bool mayWrite(const QString& path, int mode)
    {
        return access(QFile::encodeName(path).constData(), mode) == 0;
    }

} // namespace

ArchivePlace::ArchivePlace(const QString& path)
    : iPath(path)
{
    if (path == u"/.zip"_s)
        throw CommandFailure(ExitCode::WrongUsage,
            u"--zip: the archive of a book takes the folder's name, and / has none"_s);
}

QString ArchivePlace::folder() const
{
    return QFileInfo(iPath).path();
}

void ArchivePlace::requireReplaceable() const
{
    if (FileSteps::exists(iPath) && !isBookArchive(iPath))
        refuse(u"%1 is no archive of a book and would be lost; use --force to replace it"_s.arg(
            iPath));
}

void ArchivePlace::requireWritable() const
{
    if (const QString reason = whyUnwritable(); !reason.isEmpty())
        refuse(u"the archive %1 can't be written: %2"_s.arg(iPath, reason));
}

QString ArchivePlace::whyUnwritable() const
{
    const QFileInfo info(iPath);
    if (info.exists() && !info.isFile())
        return u"something that is no file lies there"_s;
    if (isNameTooLong())
        return u"its name is too long"_s;
    if ((info.exists() && !mayWrite(iPath, W_OK))
        || !mayWrite(nearestExisting(folder()), W_OK | X_OK))
        return qt_error_string();
    return {};
}

bool ArchivePlace::isNameTooLong() const
{
    const long limit
        = pathconf(QFile::encodeName(nearestExisting(folder())).constData(), _PC_NAME_MAX);
    return limit > 0
        && QFile::encodeName(QFileInfo(iPath).fileName()).size() + temporarySuffix > limit;
}

} // namespace leafcast
