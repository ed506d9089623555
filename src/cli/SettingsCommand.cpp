// SPDX-License-Identifier: MIT
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/TemplateChoice.h"
#include "templates/FlashTemplatePropertyType.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct SettingsOptions {
        TemplateOptions templateOptions;
        std::string file;
        std::string output;
        bool json = false;
    };

    QJsonObject asJson(const FlashTemplateProperty& property)
    {
        QJsonArray children;
        for (const auto& child : property.childProperties())
            children.append(asJson(*child));
        QJsonObject object{ { u"key"_s, property.key() }, { u"title"_s, property.title() },
            { u"type"_s, flashTemplatePropertyTypeName(property.propertyType()) },
            { u"value"_s, property.value() }, { u"default"_s, property.defaultValue() },
            { u"description"_s, property.desc() } };
        if (property.propertyType() == pt_list)
            object.insert(
                u"choices"_s, QJsonArray::fromStringList(property.valueSource().split(u',')));
        if (!children.isEmpty())
            object.insert(u"properties"_s, children);
        return object;
    }

    void printProperty(const FlashTemplateProperty& property, int depth)
    {
        const QString indent(2 * depth, u' ');
        if (property.propertyType() == pt_composite)
            Console::writeLine(u"%1[%2] %3"_s.arg(indent, property.key(), property.title()));
        else
            Console::writeLine(u"%1%2=%3"_s.arg(indent, property.key(), property.value()));
        for (const auto& child : property.childProperties())
            printProperty(*child, depth + 1);
    }

    std::shared_ptr<FlashTemplate> load(const SettingsOptions& options)
    {
        QStringList warnings;
        auto flashTemplate = loadChosenTemplate(options.templateOptions, warnings);
        for (const QString& warning : warnings)
            Console::say(warning);
        return flashTemplate;
    }

    ExitCode show(const SettingsOptions& options)
    {
        const auto flashTemplate = load(options);
        QJsonArray list;
        for (const auto& property : flashTemplate->properties()) {
            if (options.json)
                list.append(asJson(*property));
            else
                printProperty(*property, 0);
        }
        if (options.json)
            Console::writeData(QJsonDocument(list).toJson());
        return ExitCode::Complete;
    }

    void exportTo(const FlashTemplate& flashTemplate, const QString& path)
    {
        if (!flashTemplate.exportPropertiesSettingsTo(path))
            throw CommandFailure(
                ExitCode::OutputNotWritable, u"the settings file %1 can't be written"_s.arg(path));
    }

    // A settings file's name gets the extension that the open panels of other people's programs
    // look for.
    QString withExtension(const QString& path)
    {
        return QFileInfo(path).suffix().isEmpty() ? path + u".txt"_s : path;
    }

    ExitCode exportSettings(const SettingsOptions& options)
    {
        const QString path = withExtension(fromArgument(options.file));
        exportTo(*load(options), path);
        Console::writeLine(path);
        return ExitCode::Complete;
    }

    void printDifferences(const FlashTemplate& before, const FlashTemplateProperties& after)
    {
        for (const auto& property : after) {
            const QString former = before.propertyValueFor(property->key(), QString());
            if (former != property->value())
                Console::writeLine(
                    u"%1: %2 -> %3"_s.arg(property->key(), former, property->value()));
            printDifferences(before, property->childProperties());
        }
    }

    ExitCode importSettings(SettingsOptions options)
    {
        const auto before = load(options);
        options.templateOptions.settingsFile = options.file;
        const auto after = load(options);
        printDifferences(*before, after->properties());
        if (!options.output.empty())
            exportTo(*after, withExtension(fromArgument(options.output)));
        return ExitCode::Complete;
    }

    using Options = std::shared_ptr<SettingsOptions>;

    CLI::App* addPart(
        CLI::App& parent, const char* name, const char* description, const Options& options)
    {
        CLI::App* part = parent.add_subcommand(name, description);
        options->templateOptions.addTo(*part);
        return part;
    }

} // namespace

void addSettingsCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command
        = program.add_subcommand("settings", "Show, export or try a template's settings");
    command->require_subcommand(1);
    const auto options = std::make_shared<SettingsOptions>();

    CLI::App* showPart = addPart(*command, "show", "Show every property with its value", options);
    showPart->add_flag("--json", options->json, "Write the properties as JSON");
    showPart->callback([&chosen, options] { chosen = [options] { return show(*options); }; });

    CLI::App* exportPart
        = addPart(*command, "export", "Write all values to a settings file", options);
    exportPart
        ->add_option("FILE", options->file, "File to write; .txt is added when it has no extension")
        ->required()
        ->type_name("");
    exportPart->callback(
        [&chosen, options] { chosen = [options] { return exportSettings(*options); }; });

    CLI::App* importPart
        = addPart(*command, "import", "Try a settings file: show what it changes", options);
    importPart->add_option("FILE", options->file, "Settings file to read")
        ->required()
        ->type_name("");
    importPart->add_option(
        "--output", options->output, "Write the values that result to a settings file");
    importPart->callback(
        [&chosen, options] { chosen = [options] { return importSettings(*options); }; });
}

} // namespace leafcast
