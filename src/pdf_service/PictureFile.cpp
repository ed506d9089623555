// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PictureFile.h"

#include "pdf_service/ServiceError.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    bool writeAll(int descriptor, const std::vector<unsigned char>& bytes)
    {
        size_t written = 0;
        while (written < bytes.size()) {
            const ssize_t count
                = ::write(descriptor, bytes.data() + written, bytes.size() - written);
            if (count < 0 && errno != EINTR)
                return false;
            written += count > 0 ? static_cast<size_t>(count) : 0;
        }
        return true;
    }

    bool writeNewFile(const char* path, const std::vector<unsigned char>& bytes)
    {
        const int descriptor
            = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (descriptor < 0)
            return false;
        const bool written = writeAll(descriptor, bytes);
        const int error = errno;
        const bool closed = ::close(descriptor) == 0;
        if (!written)
            errno = error;
        return written && closed;
    }

} // namespace

void writePicture(const QString& path, const std::vector<unsigned char>& bytes)
{
    const QFileInfo target(path);
    const QByteArray temporary = QFile::encodeName(
        u"%1/.%2.%3.part"_s.arg(target.path(), target.fileName(), QString::number(::getpid())));
    if (writeNewFile(temporary.constData(), bytes)
        && std::rename(temporary.constData(), QFile::encodeName(path).constData()) == 0)
        return;
    const int error = errno;
    ::unlink(temporary.constData());
    throw ServiceError(ErrorCode::Write,
        u"the picture can't be written (%1)"_s.arg(QLatin1String(strerror(error))));
}

} // namespace leafcast::service
