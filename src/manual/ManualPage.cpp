// SPDX-License-Identifier: MIT
#include "manual/ManualPage.h"

#include "cli/ExitCode.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    /// Hyphens are minus signs, to be copied and pasted as they are.
    QString escaped(QString text)
    {
        text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
        return text.startsWith(u'.') || text.startsWith(u'\'') ? u"\\&"_s + text : text;
    }

    QString bold(const QString& text)
    {
        return u"\\fB"_s + escaped(text) + u"\\fR"_s;
    }

    QString italic(const QString& text)
    {
        return u"\\fI"_s + escaped(text) + u"\\fR"_s;
    }

    /// A sentence as part of another one.
    QString within(QString sentence)
    {
        sentence = sentence.endsWith(u'.') ? sentence.chopped(1) : sentence;
        return sentence.isEmpty() ? sentence : sentence.at(0).toLower() + sentence.mid(1);
    }

    QString heading(const CommandDescription& program)
    {
        return uR"(.TH "%1" 1 "" "Leafcast %2" "User commands")"_s.arg(
                   escaped(program.line.toUpper()), escaped(QStringLiteral(LEAFCAST_VERSION)))
            + u"\n.nh\n.ad l\n"_s;
    }

    QString synopsis(const CommandDescription& command)
    {
        QString line = bold(command.line) + u" ["_s + italic(u"OPTION"_s) + u"]..."_s;
        for (const ArgumentDescription& argument : command.arguments)
            line += argument.required ? u' ' + italic(argument.usage)
                                      : u" ["_s + italic(argument.usage) + u']';
        return line + u'\n';
    }

    bool isTyped(const CommandDescription& command)
    {
        return command.commands.empty();
    }

    QString synopses(const CommandDescription& program)
    {
        QString lines = u".SH SYNOPSIS\n"_s;
        QString separator;
        for (const CommandDescription* command : withCommandsBelow(program)) {
            if (!isTyped(*command))
                continue;
            lines += separator + synopsis(*command);
            separator = u".br\n"_s;
        }
        return lines;
    }

    QString item(const QString& name, const QString& text)
    {
        return u".TP\n"_s + name + u'\n' + escaped(text) + u'\n';
    }

    QString optionItem(const OptionDescription& option)
    {
        QStringList names;
        for (const QString& name : option.names)
            names.append(bold(name));
        QString title = names.join(u", "_s);
        if (!option.value.isEmpty())
            title += u' ' + italic(option.value);
        QString text = option.text + u'.';
        if (!option.preset.isEmpty())
            text += u" Without it: %1."_s.arg(option.preset);
        if (!option.variable.isEmpty())
            text += u" The variable %1 sets it too."_s.arg(option.variable);
        return item(title, text);
    }

    QString options(const CommandDescription& command)
    {
        QString items;
        for (const OptionDescription& option : command.options)
            if (!command.line.contains(u' ') || !option.names.contains(u"--help"_s))
                items += optionItem(option);
        return items;
    }

    QString arguments(const CommandDescription& command)
    {
        QString items;
        for (const ArgumentDescription& argument : command.arguments)
            items += item(italic(argument.usage), argument.text + u'.');
        return items;
    }

    QString commands(const CommandDescription& program)
    {
        QString sections = u".SH COMMANDS\n"_s;
        for (const CommandDescription* command : withCommandsBelow(program))
            if (command != &program && isTyped(*command))
                sections += u".SS \"%1\"\n"_s.arg(escaped(command->line)) + escaped(command->text)
                    + u".\n"_s + arguments(*command) + options(*command);
        return sections;
    }

} // namespace

QString manualPage(const CommandDescription& program, const QString& further)
{
    QString page = heading(program)
        + u".SH NAME\n%1 \\- %2\n"_s.arg(escaped(program.line), escaped(within(program.text)));
    page += synopses(program) + u".SH DESCRIPTION\n"_s + escaped(program.text) + u'\n'
        + arguments(program);
    if (program.commands.empty())
        return page + u".SH OPTIONS\n"_s + options(program) + further;
    return page + commands(program) + u".SH OPTIONS\nThey go with every command.\n"_s
        + options(program) + further;
}

QString exitStatusItems()
{
    QString items;
    for (const auto& [code, text] : exitCodeTexts)
        items += item(bold(QString::number(static_cast<int>(code))), QLatin1String(text) + u'.');
    return items.trimmed();
}

} // namespace leafcast
