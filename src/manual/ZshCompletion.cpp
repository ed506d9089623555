// SPDX-License-Identifier: MIT
#include "manual/Completions.h"
#include "manual/Skeleton.h"
#include "manual/ValueKind.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString quoted(QString text)
    {
        return u'\'' + text.replace(u'\'', u"'\\''"_s) + u'\'';
    }

    /// A text between the brackets, or after the colon, of a specification.
    QString escaped(QString text)
    {
        for (const QChar special : { u'\\', u'[', u']', u':' })
            text.replace(special, QStringLiteral("\\") + special);
        return text;
    }

    QString action(ValueKind kind, const CommandDescription& program)
    {
        const QString function = u'_' + functionName(program.line);
        switch (kind) {
        case ValueKind::File:
            return u"_files"_s;
        case ValueKind::Folder:
            return u"_files -/"_s;
        case ValueKind::Quality:
            return u'(' + qualityNames().join(u' ') + u')';
        case ValueKind::Template:
            return function + u"_template_names"_s;
        case ValueKind::Style:
            return function + u"_style_names"_s;
        case ValueKind::Anything:
            break;
        }
        return u" "_s; // nothing to offer, but shown as what is wanted
    }

    QString value(const CommandDescription& program, const QString& placeholder)
    {
        return u':' + escaped(placeholder) + u':' + action(valueKind(placeholder), program);
    }

    /// Names of one option exclude each other, or all of them the option's return.
    QString optionSpecification(
        const CommandDescription& program, const OptionDescription& option, const QString& name)
    {
        QString specification = option.repeatable ? u"*"_s : u'(' + option.names.join(u' ') + u')';
        specification += name;
        if (!option.value.isEmpty())
            specification += name.startsWith(u"--"_s) ? u"="_s : u"+"_s;
        specification += u'[' + escaped(option.text) + u']';
        if (!option.value.isEmpty())
            specification += value(program, option.value);
        return quoted(specification);
    }

    QStringList specifications(const CommandDescription& program, const CommandDescription& command)
    {
        QStringList specifications;
        for (const OptionDescription& option : command.everyOption())
            for (const QString& name : option.names)
                specifications.append(optionSpecification(program, option, name));
        for (const ArgumentDescription& argument : command.arguments)
            specifications.append(
                quoted((argument.repeatable ? u"*"_s : QString()) + value(program, argument.name)));
        return specifications;
    }

    QString shellFunction(const QString& line)
    {
        return u'_' + functionName(line);
    }

    QString commandChoice(const CommandDescription& command)
    {
        QString names;
        QString branches;
        for (const CommandDescription& below : command.commands) {
            names += u' ' + quoted(escaped(below.name()) + u':' + escaped(below.text));
            branches += u"  %1) %2 ;;\n"_s.arg(below.name(), shellFunction(below.line));
        }
        return u"  local -a commands=(%1)\n"_s.arg(names.mid(1))
            + u"  if [[ $state == command ]]; then\n"
              "    _describe -t commands command commands\n"
              "    return\n"
              "  fi\n"
              "  case $words[1] in\n"_s
            + branches + u"  esac\n"_s;
    }

    QString function(const CommandDescription& program, const CommandDescription& command)
    {
        QStringList words = specifications(program, command);
        const bool choosesCommand = !command.commands.empty();
        if (choosesCommand)
            words += { u"'1: :->command'"_s, u"'*:: :->argument'"_s };
        QString body = u"  _arguments -C -s -S : \\\n    "_s + words.join(u" \\\n    "_s);
        if (choosesCommand)
            body += u" && return\n"_s + commandChoice(command);
        else
            body += u'\n';
        return u"%1() {\n  local curcontext=$curcontext state line\n  typeset -A opt_args\n%2}\n"_s
            .arg(shellFunction(command.line), body);
    }

} // namespace

QString zshCompletion(const CommandDescription& program, const QString& skeletons)
{
    QStringList functions;
    for (const CommandDescription* command : withCommandsBelow(program))
        functions.append(function(program, *command));
    return Skeleton(skeletons + u"/completion.zsh.in"_s)
        .fill(u"PROGRAM"_s, program.line)
        .fill(u"FUNCTION"_s, functionName(program.line))
        .fill(u"TEMPLATE"_s, usualTemplate(program))
        .fill(u"FUNCTIONS"_s, functions.join(u'\n').trimmed())
        .text();
}

} // namespace leafcast
