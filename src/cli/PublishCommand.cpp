// SPDX-License-Identifier: MIT
#include "cli/BookWriting.h"
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/Interrupt.h"
#include "cli/OutputPlace.h"
#include "cli/PageInput.h"
#include "cli/PublishOptions.h"
#include "cli/PublishReport.h"
#include "templates/PropertyWalk.h"
#include "templates/ScriptHazard.h"

#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    OutputPlace outputPlace(const PublishOptions& options)
    {
        const auto kind = options.app ? OutputPlace::Kind::Package : OutputPlace::Kind::Folder;
        const auto packing = options.zip ? OutputPlace::Packing::Zip : OutputPlace::Packing::None;
        return { options.outputFolder(), kind, options.app ? options.packageName() : QString(),
            packing };
    }

    QStringList filesRead(const PublishOptions& options, const FlashTemplate& flashTemplate)
    {
        QStringList files = options.inputs();
        forEachProperty(flashTemplate.properties(), [&files](const auto& property) {
            if (property.propertyType() == pt_file && !property.value().isEmpty())
                files.append(property.value());
        });
        return files;
    }

    void warnOfHazards(const FlashTemplate& flashTemplate, PublishReport& report)
    {
        for (const ScriptHazard& hazard : scriptHazards(flashTemplate.properties()))
            report.warnings.append(u"the setting \"%1\" breaks the book's script: %2"_s.arg(
                hazard.key, hazard.reason));
    }

    void tellPeople(const PublishOptions& options, const PublishReport& report)
    {
        if (!options.quiet)
            for (const QString& warning : report.warnings)
                Console::say(warning);
        for (const QString& sentence : report.missingPageSentences())
            Console::sayError(sentence);
        for (const QString& file : report.missingFiles)
            Console::sayError(u"%1 could not be written into the book"_s.arg(file));
        if (!options.quiet)
            for (const QString& line : report.summary())
                Console::say(line);
    }

    void tellPrograms(const PublishOptions& options, const PublishReport& report)
    {
        if (options.json)
            Console::writeData(report.asJson());
        else if (!options.quiet)
            Console::writeLine(report.page);
    }

    void openBook(const QString& page)
    {
        QProcess opener;
        opener.setProgram(u"xdg-open"_s);
        opener.setArguments({ page });
        opener.setStandardOutputFile(QProcess::nullDevice());
        opener.setStandardErrorFile(QProcess::nullDevice());
        if (!opener.startDetached())
            Console::sayError(u"can't open %1: xdg-open is not installed"_s.arg(page));
    }

    ExitCode publish(const PublishOptions& options)
    {
        Interrupt::listen();
        PublishReport report;
        const auto flashTemplate = loadChosenTemplate(options.templateOptions, report.warnings);
        warnOfHazards(*flashTemplate, report);
        const OutputPlace place = outputPlace(options);
        if (!options.force)
            place.requireReplaceable();
        place.requireWritable();
        place.requireNameFits(
            options.app ? QFileInfo(place.bookPath()).fileName() : options.pageFileName());
        place.requireOutside(filesRead(options, *flashTemplate));

        const PageInput input = readPages(options, report);
        writeBook({ options, place, input, flashTemplate }, report);
        tellPeople(options, report);
        tellPrograms(options, report);
        if (options.open)
            openBook(report.page);
        return report.isComplete() ? ExitCode::Complete : ExitCode::PagesMissing;
    }

} // namespace

void addPublishCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command = program.add_subcommand("publish", "Turn a PDF or images into a book");
    const auto options = std::make_shared<PublishOptions>();
    options->addTo(*command);
    command->callback([&chosen, options] { chosen = [options] { return publish(*options); }; });
}

} // namespace leafcast
