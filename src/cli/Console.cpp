// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <cstdio>
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

void writeData(const QByteArray& bytes)
{
    fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    fflush(stdout);
}

void writeLine(const QString& text)
{
    writeData(text.toLocal8Bit() + '\n');
}

void say(const QString& text)
{
    fprintf(stderr, "leafcast: %s\n", text.toLocal8Bit().constData());
}

void sayError(const QString& sentence)
{
    if (usesColour())
        fprintf(stderr, "\033[31mleafcast:\033[0m %s\n", sentence.toLocal8Bit().constData());
    else
        say(sentence);
}

} // namespace leafcast::Console
