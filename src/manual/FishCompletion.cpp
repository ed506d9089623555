// SPDX-License-Identifier: MIT
#include "manual/Completions.h"
#include "manual/Skeleton.h"
#include "manual/ValueKind.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString quoted(QString text)
    {
        return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
    }

    QString candidates(ValueKind kind, const CommandDescription& program)
    {
        switch (kind) {
        case ValueKind::File:
            return u" -F"_s;
        case ValueKind::Folder:
            return u" -a '(__fish_complete_directories (commandline -ct))'"_s;
        case ValueKind::Quality:
            return u" -a "_s + quoted(qualityNames().join(u' '));
        case ValueKind::Template:
            return u" -a '(%1 templates 2>/dev/null)'"_s.arg(program.line);
        case ValueKind::Style:
            return u" -a '(__%1_styles)'"_s.arg(functionName(program.line));
        case ValueKind::Anything:
            break;
        }
        return {};
    }

    QString rule(const CommandDescription& program, const CommandDescription& command)
    {
        return u"complete -c %1 -n '__%2_at %3'"_s.arg(
            program.line, functionName(program.line), command.line);
    }

    /// Without files beside it, which the command's arguments may be.
    QString value(const CommandDescription& program, ValueKind kind)
    {
        return (kind == ValueKind::File ? u" -r"_s : u" -x"_s) + candidates(kind, program);
    }

    QString optionRule(const CommandDescription& program, const OptionDescription& option)
    {
        QString words;
        for (const QString& name : option.names)
            words += name.startsWith(u"--"_s) ? u" -l "_s + name.mid(2) : u" -s "_s + name.mid(1);
        if (!option.value.isEmpty())
            words += value(program, valueKind(option.value));
        return words + u" -d "_s + quoted(option.text);
    }

    QStringList rules(const CommandDescription& program, const CommandDescription& command)
    {
        const QString start = rule(program, command);
        QStringList rules;
        for (const CommandDescription& below : command.commands)
            rules.append(start + u" -a %1 -d %2"_s.arg(below.name(), quoted(below.text)));
        for (const OptionDescription& option : command.everyOption())
            rules.append(start + optionRule(program, option));
        if (!command.arguments.empty())
            rules.append(start + candidates(valueKind(command.arguments.front().name), program));
        return rules;
    }

} // namespace

QString fishCompletion(const CommandDescription& program, const QString& skeletons)
{
    QStringList lines;
    QStringList allRules;
    for (const CommandDescription* command : withCommandsBelow(program)) {
        lines.append(quoted(command->line));
        allRules += rules(program, *command);
    }
    return Skeleton(skeletons + u"/completion.fish.in"_s)
        .fill(u"PROGRAM"_s, program.line)
        .fill(u"FUNCTION"_s, functionName(program.line))
        .fill(u"TEMPLATE"_s, usualTemplate(program))
        .fill(u"LINES"_s, lines.join(u' '))
        .fill(u"RULES"_s, allRules.join(u'\n'))
        .text();
}

} // namespace leafcast
