// SPDX-License-Identifier: MIT
#include "cli/TemplateChoice.h"

#include "base/FileReason.h"
#include "base/ResourceFolder.h"
#include "cli/Command.h"
#include "templates/PropertyValueCheck.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString listed(const QStringList& names)
    {
        return names.isEmpty() ? u"none"_s : names.join(u", "_s);
    }

    QString unusableTemplate(const QString& name, const TemplateLoadOutcome& outcome)
    {
        const QString place = outcome.line > 0
            ? u"%1, line %2"_s.arg(outcome.file, QString::number(outcome.line))
            : outcome.file;
        return u"the template \"%1\" can't be used: %2: %3"_s.arg(name, place, outcome.reason);
    }

    void applyStyle(FlashTemplate& flashTemplate, const QString& styleName)
    {
        const QStringList styles = FlashTemplate::availableStyles(flashTemplate.tmplName());
        if (!styles.contains(styleName))
            throw CommandFailure(ExitCode::WrongUsage,
                u"the template \"%1\" has no style \"%2\"; it has: %3"_s.arg(
                    flashTemplate.tmplName(), styleName, listed(styles)));
        if (!flashTemplate.loadStyleByStyleName(styleName).readable)
            throw CommandFailure(ExitCode::InputUnreadable,
                u"the style \"%1\" can't be used: %2/tmplSetting.txt can't be read"_s.arg(
                    styleName, FlashTemplate::stylePathFor(flashTemplate.tmplName(), styleName)));
    }

    [[noreturn]] void refuseValue(
        const FlashTemplateProperty& property, const QString& value, const QString& problem)
    {
        const bool file = property.propertyType() == pt_file;
        throw CommandFailure(file ? ExitCode::InputUnreadable : ExitCode::WrongUsage,
            u"--set %1=%2: %3"_s.arg(property.key(), value, problem));
    }

    QString checkedValue(const FlashTemplateProperty& property, const QString& typed)
    {
        const PropertyValueCheck check = checkPropertyValue(property, typed);
        if (!check.isAccepted())
            refuseValue(property, typed, check.problem);
        return check.value;
    }

    void assign(FlashTemplate& flashTemplate, const QString& assignment)
    {
        const qsizetype equals = assignment.indexOf(u'=');
        if (equals < 1)
            throw CommandFailure(ExitCode::WrongUsage,
                u"--set %1: it must have the form KEY=VALUE"_s.arg(assignment));
        const QString key = assignment.left(equals);
        const auto property = flashTemplate.propertyForKey(key);
        if (!property)
            throw CommandFailure(ExitCode::WrongUsage,
                u"--set %1: the template \"%2\" has no property of that name; see: leafcast settings show"_s
                    .arg(key, flashTemplate.tmplName()));
        flashTemplate.setPropertyValue(key, checkedValue(*property, assignment.mid(equals + 1)));
    }

} // namespace

void TemplateOptions::addTo(CLI::App& command)
{
    command.add_option("--template", templateName, "Template of the book")
        ->type_name("TEMPLATE")
        ->envname("LEAFCAST_TEMPLATE")
        ->capture_default_str();
    command
        .add_option("--style", styleName, "Style of the template; see: leafcast styles TEMPLATE")
        ->type_name("STYLE")
        ->envname("LEAFCAST_STYLE");
    command.add_option("--settings", settingsFile, "Settings file to apply after the style")
        ->type_name("FILE");
    command.add_option("--set", assignments, "Set one property; may be repeated, applied last")
        ->type_name("KEY=VALUE")
        ->expected(1)
        ->take_all();
}

void applySettingsFile(FlashTemplate& flashTemplate, const QString& path, QStringList& warnings)
{
    const SettingsImportReport report = flashTemplate.importPropertiesSettingsFrom(path);
    if (!report.readable)
        throw CommandFailure(ExitCode::InputUnreadable,
            u"the settings file %1 can't be used: %2"_s.arg(
                path, whyUnreadable(path, u"it can't be read"_s)));
    if (report.recordCount == 0)
        throw CommandFailure(ExitCode::InputUnreadable,
            u"the settings file %1 can't be used: no line of it has the form KEY=VALUE"_s.arg(
                path));
    if (report.encoding == TextEncoding::Latin1)
        warnings.append(u"the settings file %1 is not UTF-8; it was read as Latin-1"_s.arg(path));
    for (const QString& key : report.unknownKeys)
        warnings.append(
            u"the settings file %1 has a value for \"%2\", which the template \"%3\" does not know"_s
                .arg(path, key, flashTemplate.tmplName()));
}

QStringList templateNames()
{
    QStringList names = FlashTemplate::availableTemplates();
    if (names.isEmpty())
        throw CommandFailure(ExitCode::InputUnreadable,
            u"there are no templates in the resource folder %1"_s.arg(ResourceFolder::path()));
    return names;
}

void requireTemplate(const QString& templateName)
{
    const QStringList names = templateNames();
    if (!names.contains(templateName))
        throw CommandFailure(ExitCode::WrongUsage,
            u"there is no template \"%1\"; there are: %2"_s.arg(templateName, names.join(u", "_s)));
}

std::shared_ptr<FlashTemplate> loadChosenTemplate(
    const TemplateOptions& options, QStringList& warnings)
{
    const QString name = fromArgument(options.templateName);
    requireTemplate(name);
    const auto [flashTemplate, outcome] = FlashTemplate::open(name);
    if (!flashTemplate)
        throw CommandFailure(ExitCode::InputUnreadable, unusableTemplate(name, outcome));
    if (!options.styleName.empty())
        applyStyle(*flashTemplate, fromArgument(options.styleName));
    if (!options.settingsFile.empty())
        applySettingsFile(*flashTemplate, pathFromArgument(options.settingsFile), warnings);
    for (const std::string& assignment : options.assignments)
        assign(*flashTemplate, fromArgument(assignment));
    return flashTemplate;
}

} // namespace leafcast
