// SPDX-License-Identifier: MIT
#include "cli/Command.h"

#include <algorithm>
#include <QFile>

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

QString fromArgument(const std::string& argument)
{
    return QFile::decodeName(argument.c_str() + (argument.starts_with(guard) ? 1 : 0));
}

QString pathFromArgument(const std::string& argument)
{
    const QString path = fromArgument(argument);
    return path.startsWith(u':') ? QStringLiteral("./") + path : path;
}

} // namespace leafcast
