// SPDX-License-Identifier: MIT
#include "manual/Completions.h"

using namespace Qt::StringLiterals;

namespace leafcast {

QString functionName(QString line)
{
    return line.replace(u' ', u'_').replace(u'-', u'_');
}

QString usualTemplate(const CommandDescription& program)
{
    for (const CommandDescription* command : withCommandsBelow(program))
        for (const OptionDescription& option : command->options)
            if (option.names.contains(u"--template"_s))
                return option.preset;
    return {};
}

} // namespace leafcast
