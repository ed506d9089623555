// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include "base/SystemError.h"
#include "cli/ExitCode.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast::Console {

bool isTerminal()
{
    return isatty(STDERR_FILENO) && qgetenv("TERM") != "dumb";
}

bool usesColour()
{
    return isTerminal() && qgetenv("NO_COLOR").isEmpty();
}

int width()
{
    winsize size{};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 80;
}

void keepStreamNumbers()
{
    // Opened the wrong way round, so that using one fails as it does when it is closed.
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

void writeData(const QByteArray& bytes)
{
    const auto size = static_cast<size_t>(bytes.size());
    const bool written = fwrite(bytes.constData(), 1, size, stdout) == size && fflush(stdout) == 0;
    if (!written && errno != EPIPE)
        throw CommandFailure(ExitCode::OutputNotWritable,
            u"standard output can't be written to: %1"_s.arg(systemErrorText()));
}

void writeLine(const QString& text)
{
    writeData(text.toLocal8Bit() + '\n');
}

QString printable(QString text)
{
    const auto obeyed = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(text.begin(), text.end(), obeyed, QChar(QChar::ReplacementCharacter));
    return text;
}

void say(const QString& text)
{
    fprintf(stderr, "leafcast: %s\n", printable(text).toLocal8Bit().constData());
}

void sayError(const QString& sentence)
{
    if (usesColour())
        fprintf(
            stderr, "\033[31mleafcast:\033[0m %s\n", printable(sentence).toLocal8Bit().constData());
    else
        say(sentence);
}

} // namespace leafcast::Console
