// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include "cli/Console.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString exitCodeColumn(size_t position)
    {
        if (position >= exitCodeTexts.size())
            return {};
        const auto& [code, text] = exitCodeTexts.at(position);
        return u"%1  %2"_s.arg(static_cast<int>(code), 3).arg(QLatin1String(text));
    }

    std::string footer()
    {
        QString footer = u"With every command:\n  -v,--verbose            --log-file FILE\n\n"
                         "Exit status:"_s;
        constexpr size_t rows = (exitCodeTexts.size() + 1) / 2;
        constexpr int columnWidth = 26;
        for (size_t row = 0; row < rows; ++row)
            footer += u'\n' + exitCodeColumn(row).leftJustified(columnWidth)
                + exitCodeColumn(row + rows);
        return footer.toStdString();
    }

    /// Names in the usage line too what an option's own text names beside the option.
    class HelpText : public CLI::Formatter {
    public:
        std::string make_option_usage(const CLI::Option* option) const override
        {
            return option->get_option_text().empty()
                ? CLI::Formatter::make_option_usage(option)
                : option->get_name() + option->get_option_text();
        }
    };

    struct TypedCommand {
        const CLI::App* command;
        QString line; // such as "leafcast settings show"
    };

    TypedCommand typedCommand(const CLI::App& program)
    {
        TypedCommand typed{ &program, QString::fromStdString(program.get_name()) };
        while (!typed.command->get_subcommands().empty()) {
            typed.command = typed.command->get_subcommands().front();
            typed.line += u' ' + QString::fromStdString(typed.command->get_name());
        }
        return typed;
    }

    QString usageProblem(const CLI::App& program, const CLI::ParseError& error)
    {
        const TypedCommand typed = typedCommand(program);
        const auto unknown = program.remaining(true);
        const bool wantsCommand = typed.command->get_require_subcommand_min() > 0;
        if (!wantsCommand || unknown.empty())
            return u"%1; see: %2 --help"_s.arg(
                withoutGuards(QString::fromUtf8(error.what())), typed.line);
        const QString word = QString::fromStdString(unknown.front());
        const QString kind = word.startsWith(u'-') ? u"option"_s : u"command"_s;
        return u"there is no %1 \"%2\"; see: %3 --help"_s.arg(
            kind, withoutGuards(word), typed.line);
    }

} // namespace

void describeProgram(CLI::App& program)
{
    program.name("leafcast");
    program.description("Turns a PDF into a page-turning book that any browser opens.");
    program.set_version_flag("--version", "leafcast " LEAFCAST_VERSION);
    program.require_subcommand(1);
    program.fallthrough();
    program.footer(footer());
    program.formatter(std::make_shared<HelpText>());
}

void addCommands(CLI::App& program, Action& chosen)
{
    for (const auto& addCommand : { addPublishCommand, addServeCommand, addInspectCommand,
             addTemplatesCommand, addStylesCommand, addSettingsCommand })
        addCommand(program, chosen);
}

std::optional<int> parseArguments(CLI::App& program, int argc, char** argv)
try {
    program.parse(protectedArguments(argc, argv));
    return std::nullopt;
} catch (const CLI::Success& helpOrVersion) {
    return program.exit(helpOrVersion);
} catch (const CLI::ParseError& error) {
    Console::sayError(usageProblem(program, error));
    return static_cast<int>(ExitCode::WrongUsage);
}

} // namespace leafcast
