// SPDX-License-Identifier: MIT
#include "cli/Command.h"

#include <QFile>

namespace leafcast {

QString fromArgument(const std::string& argument)
{
    return QFile::decodeName(argument.c_str());
}

} // namespace leafcast
