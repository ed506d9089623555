// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/MessageStream.h"

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace leafcast::service {

std::optional<MessageStream::Line> MessageStream::read()
{
    for (;;) {
        const qsizetype end = iBuffer.indexOf('\n');
        if (end >= 0) {
            Line line{ iBuffer.left(end), iSkipping || end > LongestRequest };
            iBuffer.remove(0, end + 1);
            iSkipping = false;
            if (line.tooLong)
                line.text.clear();
            return line;
        }
        if (iBuffer.size() > LongestRequest) {
            iBuffer.clear();
            iSkipping = true;
        }
        if (!fill())
            return std::nullopt;
    }
}

bool MessageStream::fill()
{
    char chunk[65536];
    ssize_t count = 0;
    do {
        count = ::read(STDIN_FILENO, chunk, sizeof chunk);
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return false;
    iBuffer.append(chunk, static_cast<qsizetype>(count));
    return true;
}

void MessageStream::write(const QByteArray& message)
{
    const QByteArray line = message + '\n';
    qsizetype written = 0;
    while (written < line.size()) {
        const ssize_t count = ::write(
            STDOUT_FILENO, line.constData() + written, static_cast<size_t>(line.size() - written));
        if (count < 0 && errno != EINTR)
            std::_Exit(EXIT_FAILURE);
        written += count > 0 ? static_cast<qsizetype>(count) : 0;
    }
}

} // namespace leafcast::service
