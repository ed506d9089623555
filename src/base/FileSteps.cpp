// SPDX-License-Identifier: MIT
#include "base/FileSteps.h"

#include "base/FileCopy.h"
#include "base/FolderCopy.h"
#include "base/Log.h"
#include "base/SystemError.h"

#include <cerrno>
#include <filesystem>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace leafcast::FileSteps {

namespace {

    bool failed(const char* what, const QString& path, const QString& why)
    {
        LOG_WARN("FileSteps", u"can't %1 %2: %3"_s.arg(QString::fromLatin1(what), path, why));
        return false;
    }

    std::filesystem::path native(const QString& path)
    {
        return QFile::encodeName(path).toStdString();
    }

    QString reason(const std::error_code& error)
    {
        return QString::fromStdString(error.message());
    }

    bool isUnchanged(const QFileInfo& source, const QFileInfo& destination)
    {
        return destination.isFile() && !destination.isSymLink()
            && source.size() == destination.size()
            && source.lastModified() == destination.lastModified();
    }

} // namespace

bool exists(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool remove(const QString& path)
{
    std::error_code error;
    std::filesystem::remove_all(native(path), error);
    return !error || failed("remove", path, reason(error));
}

bool makeFolders(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(native(QDir::cleanPath(path)), error);
    return !error || failed("make the folder", path, reason(error));
}

bool makeFolder(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directory(native(path), error);
    return !error || failed("make the folder", path, reason(error));
}

bool copyFile(const QString& source, const QString& destination)
{
    FileCopy copy(source);
    if (!copy.placeAt(destination, FileCopy::WhenTaken::Fail))
        return failed("copy", source, u"to %1: %2"_s.arg(destination, copy.error()));
    return true;
}

bool replaceFile(const QString& source, const QString& destination)
{
    const QFileInfo sourceInfo(source);
    if (!sourceInfo.isFile()) {
        remove(destination);
        return failed("copy", source, u"it is not a file"_s);
    }
    if (isUnchanged(sourceInfo, QFileInfo(destination)))
        return true;
    if (QFileInfo(destination).isDir() && !remove(destination))
        return false;
    FileCopy copy(source);
    if (!copy.placeAt(destination, FileCopy::WhenTaken::Replace))
        return failed("copy", source, u"to %1: %2"_s.arg(destination, copy.error()));
    return true;
}

bool copyFolder(const QString& source, const QString& destination, QString* reason)
{
    FolderCopy copy(source);
    const bool complete = copy.placeAt(destination);
    if (reason)
        *reason = copy.error();
    return complete;
}

bool writeAtomically(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failed("write", path, file.errorString());
    // A QSaveFile that was written short, or not flushed, commits what there is all the same. Of a
    // short write it does not know the reason, but the system does.
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush())
        return failed("write", path, errno ? systemErrorText() : file.errorString());
    return file.commit() || failed("write", path, file.errorString());
}

std::optional<QByteArray> read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        failed("read", path, file.errorString());
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        failed("read", path, file.errorString());
        return std::nullopt;
    }
    return bytes;
}

} // namespace leafcast::FileSteps
