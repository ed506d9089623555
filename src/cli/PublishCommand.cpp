// SPDX-License-Identifier: MIT
#include "base/LogConfiguration.h"
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/Interrupt.h"
#include "cli/OutputPlace.h"
#include "cli/PageInput.h"
#include "cli/PublishOptions.h"
#include "cli/PublishReport.h"
#include "cli/WatchedWork.h"
#include "publish/BookCheck.h"
#include "publish/FlashBookOutput.h"
#include "publish/FlashBookOutputApp.h"
#include "publish/HTMLConfigInfo.h"

#include <algorithm>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString packageName(const PublishOptions& options)
    {
        const QString name = options.name.empty()
            ? QFileInfo(options.inputs().constFirst()).completeBaseName()
            : QFileInfo(fromArgument(options.name)).completeBaseName();
        return name;
    }

    // A null string where the writer is to choose.
    QString pageFileName(const PublishOptions& options)
    {
        const QString name = fromArgument(options.name);
        if (name.isEmpty())
            return {};
        return QFileInfo(name).suffix().isEmpty() ? name + u".html"_s : name;
    }

    void requireFileName(const QString& name)
    {
        if (name.contains(u'/') || name == u"."_s || name == u".."_s)
            throw CommandFailure(ExitCode::WrongUsage,
                u"--name %1: it must be a file name without a folder"_s.arg(name));
    }

    OutputPlace outputPlace(const PublishOptions& options)
    {
        requireFileName(fromArgument(options.name));
        const auto kind = options.app ? OutputPlace::Kind::Package : OutputPlace::Kind::Folder;
        return OutputPlace(options.outputFolder(), kind, packageName(options));
    }

    // What a person typed as the title may hold markup; what a file says may not.
    QString htmlTitle(const PublishOptions& options, const PageInput& input)
    {
        return options.title ? fromArgument(*options.title) : input.title.toHtmlEscaped();
    }

    void takePageSize(FlashTemplate& flashTemplate, const PageInput& input)
    {
        flashTemplate.setPropertyValue(u"pageWidth"_s, QString::number(input.pageWidth));
        flashTemplate.setPropertyValue(u"pageHeight"_s, QString::number(input.pageHeight));
    }

    std::unique_ptr<FlashBookOutput> makeWriter(const PublishOptions& options,
        const OutputPlace& place, const PageInput& input,
        const std::shared_ptr<FlashTemplate>& flashTemplate)
    {
        if (options.app)
            return std::make_unique<FlashBookOutputApp>(
                input.pageSource, flashTemplate, place.folder(), packageName(options) + u".app"_s);
        return std::make_unique<FlashBookOutput>(
            input.pageSource, flashTemplate, place.folder(), pageFileName(options));
    }

    std::shared_ptr<HTMLConfigInfo> htmlConfig(
        const PublishOptions& options, const PageInput& input)
    {
        auto config = std::make_shared<HTMLConfigInfo>();
        config->setHTMLTitle(htmlTitle(options, input));
        return config;
    }

    void writeBook(FlashBookOutput& writer, PublishReport& report)
    {
        QElapsedTimer clock;
        clock.start();
        WatchedWork{
            .work = [&] { writer.ouputTheBook(); },
            .cancel = [&] { writer.flashPageSource()->setStop(true); }
        }.run();
        report.writeSeconds = static_cast<double>(clock.elapsed()) / 1000;
        report.output = QFileInfo(writer.outputFileName()).absoluteFilePath();
        report.page = QFileInfo(writer.outputHTMLFileName()).absoluteFilePath();
        if (Interrupt::isRequested())
            throw CommandFailure(ExitCode::Interrupted,
                u"interrupted; the book in %1 may be incomplete"_s.arg(report.output));
    }

    bool isReported(const PublishReport& report, int pageNumber)
    {
        return std::ranges::any_of(report.missingPages,
            [pageNumber](const auto& page) { return page.number == pageNumber; });
    }

    // The writer works on a best-effort basis and tells nobody; what it left is looked at here.
    void checkBook(const FlashBookOutput& writer, PublishReport& report)
    {
        const BookCheck check(writer);
        for (const int pageNumber : check.pagesWithoutPicture)
            if (!isReported(report, pageNumber))
                report.missingPages.push_back(
                    { pageNumber, u"its picture could not be copied into the book"_s });
        report.missingFiles = check.missingFiles;
    }

    void tellPeople(const PublishOptions& options, const PublishReport& report)
    {
        for (const QString& warning : report.warnings)
            Console::say(warning);
        for (const QString& sentence : report.missingPageSentences())
            Console::sayError(sentence);
        for (const QString& file : report.missingFiles)
            Console::sayError(u"%1 is missing from the book"_s.arg(file));
        if (!options.quiet)
            Console::say(report.summary());
    }

    void openBook(const QString& path)
    {
        if (!QProcess::startDetached(u"xdg-open"_s, { path }))
            Console::sayError(u"can't open %1: xdg-open is not installed"_s.arg(path));
    }

    ExitCode publish(const PublishOptions& options)
    {
        if (options.verbose)
            LogConfiguration::addStandardErrorSink(LogLevel::Warn);
        PublishReport report;
        const auto flashTemplate = loadChosenTemplate(options.templateOptions, report.warnings);
        const OutputPlace place = outputPlace(options);
        if (!options.force)
            place.requireReplaceable();

        const PageInput input = readPages(options, report);
        place.requireRoomFor(report.bytes);
        place.prepare();
        takePageSize(*flashTemplate, input);
        const auto writer = makeWriter(options, place, input, flashTemplate);
        writer->setHTMLConfig(htmlConfig(options, input));
        writer->setFlashPagesAnnotations(input.links);
        writer->setFlashOutline(input.outline);
        writer->setWorkerCount(options.jobs);
        writeBook(*writer, report);
        checkBook(*writer, report);
        report.title = htmlTitle(options, input);

        tellPeople(options, report);
        if (options.json)
            Console::writeData(report.asJson());
        else if (!options.quiet)
            Console::writeLine(report.page);
        if (options.open)
            openBook(report.output);
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
