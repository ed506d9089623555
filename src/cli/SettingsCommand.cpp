// SPDX-License-Identifier: MIT
#include "base/FileReason.h"
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/TemplateChoice.h"
#include "templates/FlashTemplatePropertyType.h"
#include "templates/PropertyWalk.h"

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
        std::optional<std::string> output;
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

    void say(const QStringList& warnings)
    {
        for (const QString& warning : warnings)
            Console::say(warning);
    }

    std::shared_ptr<FlashTemplate> load(const SettingsOptions& options)
    {
        QStringList warnings;
        auto flashTemplate = loadChosenTemplate(options.templateOptions, warnings);
        say(warnings);
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
            throw CommandFailure(ExitCode::OutputNotWritable,
                u"the settings file %1 can't be written: %2"_s.arg(path, whyUnwritable(path)));
    }

    /// The file to write: ".txt", the extension of settings files, is added to a name without one.
    QString settingsFile(const std::string& typed)
    {
        const QString path = pathFromArgument(typed);
        if (path.isEmpty())
            throw CommandFailure(ExitCode::WrongUsage, u"the settings file has no name"_s);
        return QFileInfo(path).suffix().isEmpty() ? path + u".txt"_s : path;
    }

    ExitCode exportSettings(const SettingsOptions& options)
    {
        const QString path = settingsFile(options.file);
        exportTo(*load(options), path);
        Console::writeLine(path);
        return ExitCode::Complete;
    }

    /// Keys and values, in the order of the tree.
    using Values = std::vector<std::pair<QString, QString>>;

    Values valuesOf(const FlashTemplate& flashTemplate)
    {
        Values values;
        forEachProperty(flashTemplate.properties(), [&values](const auto& property) {
            values.emplace_back(property.key(), property.value());
        });
        return values;
    }

    ExitCode importSettings(const SettingsOptions& options)
    {
        const auto flashTemplate = load(options);
        const Values before = valuesOf(*flashTemplate);
        QStringList warnings;
        applySettingsFile(*flashTemplate, pathFromArgument(options.file), warnings);
        say(warnings);
        const Values after = valuesOf(*flashTemplate);
        for (size_t i = 0; i < after.size(); ++i)
            if (before.at(i) != after.at(i))
                Console::writeLine(u"%1: %2 -> %3"_s.arg(
                    after.at(i).first, before.at(i).second, after.at(i).second));
        if (options.output)
            exportTo(*flashTemplate, settingsFile(*options.output));
        return ExitCode::Complete;
    }

    using Options = std::shared_ptr<SettingsOptions>;

    template <typename Run>
    CLI::App* addPart(CLI::App& parent, const char* name, const char* description,
        const Options& options, Action& chosen, Run run)
    {
        CLI::App* part = parent.add_subcommand(name, description);
        options->templateOptions.addTo(*part);
        part->callback(
            [&chosen, options, run] { chosen = [options, run] { return run(*options); }; });
        return part;
    }

    void addShow(CLI::App& parent, const Options& options, Action& chosen)
    {
        addPart(parent, "show", "Show every property with its value", options, chosen, show)
            ->add_flag("--json", options->json, "Write the properties as JSON");
    }

    void addExport(CLI::App& parent, const Options& options, Action& chosen)
    {
        addPart(parent, "export", "Write all values to a settings file", options, chosen,
            exportSettings)
            ->add_option(
                "FILE", options->file, "File to write; .txt is added when it has no extension")
            ->required()
            ->type_name("");
    }

    void addImport(CLI::App& parent, const Options& options, Action& chosen)
    {
        CLI::App* part = addPart(parent, "import", "Try a settings file: show what it changes",
            options, chosen, importSettings);
        part->add_option("FILE", options->file, "Settings file to read")->required()->type_name("");
        part->add_option("--output", options->output, "Settings file to write the result to")
            ->type_name("FILE");
    }

} // namespace

void addSettingsCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command
        = program.add_subcommand("settings", "Show, export or try a template's settings");
    command->require_subcommand(1);
    const auto options = std::make_shared<SettingsOptions>();
    addShow(*command, options, chosen);
    addExport(*command, options, chosen);
    addImport(*command, options, chosen);
}

} // namespace leafcast
