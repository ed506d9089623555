// SPDX-License-Identifier: MIT
#include "cli/Command.h"

#include "base/TextDecoding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr char guard = '\x01';

} // namespace

std::vector<std::string> protectedArguments(int argc, char** argv)
{
    std::vector<std::string> arguments(argv + 1, argv + argc);
    for (std::string& argument : arguments)
        if (argument.starts_with('['))
            argument.insert(0, 1, guard);
    // The parser takes them from the back.
    std::ranges::reverse(arguments);
    return arguments;
}

QString withoutGuards(QString text)
{
    return text.remove(QLatin1Char(guard));
}

QString fromArgument(const std::string& argument)
{
    const QByteArray typed(argument.c_str() + (argument.starts_with(guard) ? 1 : 0));
    // Decoded all the same, it would name another file.
    if (!isValidUtf8(typed))
        throw CommandFailure(ExitCode::WrongUsage,
            u"%1: names and texts must be UTF-8"_s.arg(QString::fromUtf8(typed)));
    return QString::fromUtf8(typed);
}

QString pathFromArgument(const std::string& argument)
{
    const QString path = fromArgument(argument);
    return path.startsWith(u':') ? QStringLiteral("./") + path : path;
}

} // namespace leafcast
