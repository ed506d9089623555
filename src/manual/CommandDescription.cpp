// SPDX-License-Identifier: MIT
#include "manual/CommandDescription.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QStringList names(const CLI::Option& option)
    {
        QStringList names;
        for (const std::string& letter : option.get_snames())
            names.append(u'-' + QString::fromStdString(letter));
        for (const std::string& word : option.get_lnames())
            names.append(u"--"_s + QString::fromStdString(word));
        return names;
    }

    bool isRepeatable(const CLI::Option& option)
    {
        return option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll
            || option.get_items_expected_max() > 1;
    }

    OptionDescription describe(const CLI::Option& option)
    {
        const bool takesValue = option.get_type_size() != 0;
        return { names(option),
            takesValue ? QString::fromStdString(option.get_type_name()) : QString(),
            QString::fromStdString(option.get_default_str()),
            QString::fromStdString(option.get_envname()),
            QString::fromStdString(option.get_description()), takesValue && isRepeatable(option) };
    }

    ArgumentDescription describeArgument(const CLI::Option& option)
    {
        const QString name = QString::fromStdString(option.get_name(true));
        const bool repeatable = isRepeatable(option);
        const QString ownText = QString::fromStdString(option.get_option_text());
        return { name, name + (ownText.isEmpty() && repeatable ? u"..."_s : ownText),
            QString::fromStdString(option.get_description()), option.get_required(), repeatable };
    }

    void addOptions(const CLI::App& parser, CommandDescription& command)
    {
        for (const CLI::Option* option : parser.get_options()) {
            if (option->get_positional())
                command.arguments.push_back(describeArgument(*option));
            else
                command.options.push_back(describe(*option));
        }
    }

    bool isShared(const OptionDescription& option)
    {
        return !option.names.contains(u"--help"_s) && !option.names.contains(u"--version"_s);
    }

    CommandDescription describe(
        const CLI::App& parser, const QString& line, const std::vector<OptionDescription>& shared)
    {
        CommandDescription command{ line, QString::fromStdString(parser.get_description()), {}, {},
            shared, {} };
        addOptions(parser, command);
        std::vector<OptionDescription> passedOn = command.everyOption();
        std::erase_if(passedOn, [](const auto& option) { return !isShared(option); });
        for (const CLI::App* below : parser.get_subcommands([](const CLI::App*) { return true; }))
            command.commands.push_back(describe(
                *below, line + u' ' + QString::fromStdString(below->get_name()), passedOn));
        return command;
    }

} // namespace

std::vector<OptionDescription> CommandDescription::everyOption() const
{
    std::vector<OptionDescription> every = options;
    every.insert(every.end(), sharedOptions.begin(), sharedOptions.end());
    return every;
}

CommandDescription describe(const CLI::App& program)
{
    return describe(program, QString::fromStdString(program.get_name()), {});
}

std::vector<const CommandDescription*> withCommandsBelow(const CommandDescription& command)
{
    std::vector<const CommandDescription*> all{ &command };
    for (const CommandDescription& below : command.commands) {
        const auto further = withCommandsBelow(below);
        all.insert(all.end(), further.begin(), further.end());
    }
    return all;
}

} // namespace leafcast
