// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/InputFile.h"

#include "pdf_service/ServiceError.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast::service {

void checkInputFile(const QString& path)
{
    const int descriptor
        = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        throw ServiceError(ErrorCode::Missing,
            errno == ENOENT ? u"there is no such file"_s
                            : u"it can't be opened (%1)"_s.arg(QLatin1String(strerror(errno))));
    struct stat status { };
    const bool known = fstat(descriptor, &status) == 0;
    ::close(descriptor);
    if (!known || !S_ISREG(status.st_mode))
        throw ServiceError(ErrorCode::Unreadable, u"it is not a file"_s);
    if (status.st_size == 0)
        throw ServiceError(ErrorCode::Empty, u"it is empty"_s);
}

} // namespace leafcast::service
