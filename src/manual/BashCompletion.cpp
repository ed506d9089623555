// SPDX-License-Identifier: MIT
#include "manual/Completions.h"
#include "manual/Skeleton.h"
#include "manual/ValueKind.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString kindName(ValueKind kind)
    {
        switch (kind) {
        case ValueKind::File:
            return u"file"_s;
        case ValueKind::Folder:
            return u"folder"_s;
        case ValueKind::Quality:
            return u"quality"_s;
        case ValueKind::Template:
            return u"template"_s;
        case ValueKind::Style:
            return u"style"_s;
        case ValueKind::Anything:
            break;
        }
        return u"anything"_s;
    }

    /// The branches of the script's case statements.
    struct Tables {
        QStringList commands;
        QStringList options;
        QStringList kinds;

        void add(const CommandDescription& command);
        void addKind(const QString& line, const QString& placeholder)
        {
            addBranch(kinds, line, kindName(valueKind(placeholder)));
        }
        static void addBranch(QStringList& table, const QString& line, const QString& words)
        {
            table.append(u"  '%1') echo '%2' ;;"_s.arg(line, words));
        }
    };

    void Tables::add(const CommandDescription& command)
    {
        QStringList below;
        for (const CommandDescription& each : command.commands)
            below.append(each.name());
        addBranch(commands, command.line, below.join(u' '));

        QStringList names;
        for (const OptionDescription& option : command.everyOption()) {
            names += option.names;
            for (const QString& name : option.names)
                if (!option.value.isEmpty())
                    addKind(command.line + u' ' + name, option.value);
        }
        addBranch(options, command.line, names.join(u' '));
        if (!command.arguments.empty())
            addKind(command.line, command.arguments.front().name);
    }

} // namespace

QString bashCompletion(const CommandDescription& program, const QString& skeletons)
{
    Tables tables;
    for (const CommandDescription* command : withCommandsBelow(program))
        tables.add(*command);
    return Skeleton(skeletons + u"/completion.bash.in"_s)
        .fill(u"PROGRAM"_s, program.line)
        .fill(u"FUNCTION"_s, functionName(program.line))
        .fill(u"TEMPLATE"_s, usualTemplate(program))
        .fill(u"QUALITIES"_s, qualityNames().join(u"\\n"_s))
        .fill(u"COMMANDS"_s, tables.commands.join(u'\n'))
        .fill(u"OPTIONS"_s, tables.options.join(u'\n'))
        .fill(u"KINDS"_s, tables.kinds.join(u'\n'))
        .text();
}

} // namespace leafcast
