// SPDX-License-Identifier: MIT
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/TemplateChoice.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void print(const QStringList& names, bool json)
    {
        if (json)
            Console::writeData(QJsonDocument(QJsonArray::fromStringList(names)).toJson());
        else
            for (const QString& name : names)
                Console::writeLine(name);
    }

    ExitCode listTemplates(bool json)
    {
        print(templateNames(), json);
        return ExitCode::Complete;
    }

    ExitCode listStyles(const QString& templateName, bool json)
    {
        requireTemplate(templateName);
        print(FlashTemplate::availableStyles(templateName), json);
        return ExitCode::Complete;
    }

} // namespace

void addTemplatesCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command = program.add_subcommand("templates", "List the templates");
    const auto json = std::make_shared<bool>(false);
    command->add_flag("--json", *json, "Write a JSON list");
    command->callback([&chosen, json] { chosen = [json] { return listTemplates(*json); }; });
}

void addStylesCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command = program.add_subcommand("styles", "List the styles of a template");
    const auto json = std::make_shared<bool>(false);
    const auto templateName = std::make_shared<std::string>();
    command->add_option("TEMPLATE", *templateName, "Name of the template")
        ->required()
        ->type_name("");
    command->add_flag("--json", *json, "Write a JSON list");
    command->callback([&chosen, json, templateName] {
        chosen = [json, templateName] { return listStyles(fromArgument(*templateName), *json); };
    });
}

} // namespace leafcast
