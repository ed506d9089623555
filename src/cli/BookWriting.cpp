// SPDX-License-Identifier: MIT
#include "cli/BookWriting.h"

#include "cli/ArchiveWriting.h"
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/DiskRoom.h"
#include "cli/Interrupt.h"
#include "cli/ShownProgress.h"
#include "cli/WatchedWork.h"
#include "publish/BookCheck.h"
#include "publish/FlashBookOutput.h"
#include "publish/FlashBookOutputApp.h"
#include "publish/HTMLConfigInfo.h"
#include "publish/OutputLock.h"
#include "publish/PublishNotifications.h"

#include <algorithm>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString title(const BookParts& parts)
    {
        return parts.options.title ? fromArgument(*parts.options.title) : parts.input.title;
    }

    std::shared_ptr<HTMLConfigInfo> htmlConfig(const BookParts& parts)
    {
        auto config = std::make_shared<HTMLConfigInfo>();
        // What a person typed may hold markup; what a file says may not.
        config->setHTMLTitle(parts.options.title ? title(parts) : title(parts).toHtmlEscaped());
        if (parts.options.description)
            config->setHTMLDescription(fromArgument(*parts.options.description));
        if (parts.options.keywords)
            config->setHTMLKeywords(fromArgument(*parts.options.keywords));
        return config;
    }

    bool isAssigned(const TemplateOptions& options, const std::string& key)
    {
        return std::ranges::any_of(options.assignments,
            [&](const std::string& assignment) { return assignment.starts_with(key + '='); });
    }

    // The page size follows the document, unless somebody asked for another one.
    void takePageSize(const BookParts& parts)
    {
        const auto take = [&](const char* key, int size) {
            if (size > 0 && !isAssigned(parts.options.templateOptions, key))
                parts.flashTemplate->setPropertyValue(
                    QString::fromLatin1(key), QString::number(size));
        };
        take("pageWidth", parts.input.pageWidth);
        take("pageHeight", parts.input.pageHeight);
    }

    std::unique_ptr<FlashBookOutput> makeWriter(const BookParts& parts)
    {
        const QString folder = parts.place.folder();
        if (parts.options.app)
            return std::make_unique<FlashBookOutputApp>(parts.input.pageSource, parts.flashTemplate,
                folder, parts.options.packageName() + u".app"_s);
        return std::make_unique<FlashBookOutput>(
            parts.input.pageSource, parts.flashTemplate, folder, parts.options.pageFileName());
    }

    void configure(FlashBookOutput& writer, const BookParts& parts)
    {
        writer.setHTMLConfig(htmlConfig(parts));
        writer.setFlashPagesAnnotations(parts.input.links);
        writer.setFlashOutline(parts.input.outline);
        writer.setWorkerCount(parts.options.jobs);
    }

    void runWriter(FlashBookOutput& writer, const PublishOptions& options, PublishReport& report)
    {
        QElapsedTimer clock;
        clock.start();
        ProgressBar bar(u"pages' text"_s, options.progressVisibility());
        ShownProgress progress(bar, ReaderDataProgressMSG, QString());
        WatchedWork{
            .work = [&] { writer.ouputTheBook(); },
            .showProgress = [&] { progress.show(); },
            .cancel = [&] { writer.flashPageSource()->setStop(true); }
        }.run();
        report.writeSeconds = static_cast<double>(clock.elapsed()) / 1000;
        Interrupt::endIfRequested(u"the book in %1 may be incomplete"_s.arg(report.output));
    }

    void waitFor(const OutputLock& lock, const BookParts& parts)
    {
        constexpr int lookMilliseconds = 50;
        if (lock.take())
            return;
        if (!parts.options.quiet)
            Console::say(
                u"waiting for another program that writes into %1"_s.arg(parts.place.folder()));
        while (!lock.take()) {
            Interrupt::endIfRequested(u"nothing was written"_s);
            QThread::msleep(lookMilliseconds);
        }
    }

    QStringList pictures(const FlashPageSource& source)
    {
        QStringList files;
        for (const auto& page : source.normalPages())
            files.append(page->pageFilePath());
        return files;
    }

    bool isReported(const PublishReport& report, int pageNumber)
    {
        return std::ranges::any_of(report.missingPages,
            [pageNumber](const auto& page) { return page.number == pageNumber; });
    }

    void checkBook(const FlashBookOutput& writer, bool isPackage, PublishReport& report)
    {
        const BookCheck check(writer);
        report.pageCount = static_cast<int>(
            writer.flashPageSource()->normalPages().size() - check.pagesWithoutPicture.size());
        for (const int pageNumber : check.pagesWithoutPicture)
            if (!isReported(report, pageNumber))
                report.missingPages.push_back(
                    { pageNumber, u"the picture could not be copied into the book"_s });
        for (const QString& file : check.missingFiles)
            report.missingFiles.append(QDir(report.output).relativeFilePath(file));
        // A folder is read without them; a package is of little use.
        if (isPackage)
            report.warnings.append(check.notShipped);
    }

    // Without reader data a player knows the number of pages, and nothing else of their files.
    void warnOfUnlistedPages(const FlashBookOutput& writer, PublishReport& report)
    {
        if (writer.wantsReaderData())
            return;
        int place = 0;
        for (const auto& page : writer.flashPageSource()->normalPages())
            if (page->pageIndex() != ++place || !page->pageFilePath().endsWith(u".jpg")) {
                report.warnings.append(
                    u"without reader data a player finds only pages numbered from 1 that are .jpg files"_s);
                return;
            }
    }

} // namespace

void writeBook(const BookParts& parts, PublishReport& report)
{
    Interrupt::endIfRequested(u"nothing was written"_s);
    takePageSize(parts);
    const auto writer = makeWriter(parts);
    configure(*writer, parts);
    parts.place.requireOutside(pictures(*parts.input.pageSource));
    requireRoom(parts.place, *writer);
    parts.place.makeFolder();
    const OutputLock lock(parts.place.folder());
    waitFor(lock, parts);
    report.title = title(parts);
    report.output = parts.place.bookPath();
    report.page = QFileInfo(writer->outputHTMLFileName()).absoluteFilePath();
    runWriter(*writer, parts.options, report);
    checkBook(*writer, parts.options.app, report);
    warnOfUnlistedPages(*writer, report);
    if (const auto& archive = parts.place.archive())
        writeArchive(*archive, *writer, parts, report);
}

} // namespace leafcast
