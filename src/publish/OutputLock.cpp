// SPDX-License-Identifier: MIT
#include "publish/OutputLock.h"

#include <cerrno>
#include <fcntl.h>
#include <QFile>
#include <sys/file.h>

namespace leafcast {

OutputLock::OutputLock(const QString& folder)
    : iFolder(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

bool OutputLock::take() const
{
    return flock(iFolder.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

} // namespace leafcast
