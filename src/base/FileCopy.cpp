// SPDX-License-Identifier: MIT
#include "base/FileCopy.h"

#include "base/FileDescriptor.h"
#include "base/Log.h"
#include "base/SystemError.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <QByteArray>
#include <QFile>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool writeAll(int fd, const char* bytes, ssize_t size)
    {
        while (size > 0) {
            const ssize_t written = write(fd, bytes, static_cast<size_t>(size));
            if (written < 0 && errno != EINTR)
                return false;
            if (written > 0) {
                bytes += written;
                size -= written;
            }
        }
        return true;
    }

    bool copyThroughMemory(int from, int to)
    {
        std::array<char, 1 << 16> buffer;
        for (;;) {
            const ssize_t got = ::read(from, buffer.data(), buffer.size());
            if (got == 0)
                return true;
            if (got < 0 && errno != EINTR)
                return false;
            if (got > 0 && !writeAll(to, buffer.data(), got))
                return false;
        }
    }

    bool copyContent(int from, int to)
    {
        if (ioctl(to, FICLONE, from) == 0)
            return true;
        constexpr size_t chunk = 1 << 30;
        for (;;) {
            const ssize_t copied = copy_file_range(from, nullptr, to, nullptr, chunk, 0);
            if (copied == 0)
                return true;
            if (copied < 0
                && (errno == EXDEV || errno == ENOSYS || errno == EINVAL || errno == EOPNOTSUPP))
                return copyThroughMemory(from, to);
            if (copied < 0 && errno != EINTR)
                return false;
        }
    }

    /// Memory sticks and network shares may refuse it to all but root, who mounted them. Their
    /// files are none the worse for that.
    void copyAttributes(const struct stat& from, int to, const char* path)
    {
        constexpr mode_t permissions = 0777;
        const std::array<timespec, 2> times{ from.st_atim, from.st_mtim };
        if (fchmod(to, from.st_mode & permissions) != 0 || futimens(to, times.data()) != 0)
            LOG_WARN("FileCopy",
                u"%1 could not get time and permissions of what it is a copy of: %2"_s.arg(
                    QFile::decodeName(path), systemErrorText()));
    }

    bool isFree(const char* path)
    {
        struct stat status { };
        if (lstat(path, &status) != 0)
            return errno == ENOENT;
        errno = EEXIST;
        return false;
    }

    bool moveIntoPlace(const char* from, const char* to, FileCopy::WhenTaken whenTaken)
    {
        if (whenTaken == FileCopy::WhenTaken::Replace)
            return rename(from, to) == 0;
        if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
            return true;
        // File systems that have no such rename may not have hard links either.
        return errno == EINVAL && isFree(to) && rename(from, to) == 0;
    }

} // namespace

bool FileCopy::fail(const char* step)
{
    iError = u"%1: %2"_s.arg(QLatin1StringView(step), systemErrorText());
    return false;
}

bool FileCopy::placeAt(const QString& destination, WhenTaken whenTaken)
{
    const FileDescriptor from(
        open(QFile::encodeName(iSource).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status { };
    if (!from.isOpen() || fstat(from.get(), &status) != 0)
        return fail("open");
    if (!S_ISREG(status.st_mode)) {
        iError = u"it is not a regular file"_s;
        return false;
    }

    const QByteArray target = QFile::encodeName(destination);
    QByteArray temporary = target.left(target.lastIndexOf('/') + 1) + ".leafcast-XXXXXX";
    FileDescriptor to(mkostemp(temporary.data(), O_CLOEXEC));
    if (!to.isOpen())
        return fail("create");
    bool copied = copyContent(from.get(), to.get());
    if (copied)
        copyAttributes(status, to.get(), target.constData());
    copied = copied && to.close()
        && moveIntoPlace(temporary.constData(), target.constData(), whenTaken);
    if (!copied) {
        fail("copy");
        unlink(temporary.constData());
    }
    return copied;
}

} // namespace leafcast
