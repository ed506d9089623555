// SPDX-License-Identifier: MIT
#include "publish/BookPublication.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/Sentences.h"
#include "publish/BookCheck.h"
#include "publish/BookName.h"
#include "publish/BookRoom.h"
#include "publish/FlashBookOutputApp.h"
#include "publish/OutputLock.h"
#include "templates/PropertyWalk.h"

#include <algorithm>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    std::shared_ptr<HTMLConfigInfo> htmlConfig(const BookPublication::Choices& choices)
    {
        auto config = std::make_shared<HTMLConfigInfo>();
        config->setHTMLTitle(choices.title);
        if (choices.description)
            config->setHTMLDescription(*choices.description);
        if (choices.keywords)
            config->setHTMLKeywords(*choices.keywords);
        return config;
    }

    QString pageFileName(const BookPublication::Choices& choices)
    {
        return choices.name + u".html"_s;
    }

    std::unique_ptr<FlashBookOutput> newWriter(FlashBookOutput::PageSource pages,
        FlashBookOutput::Template flashTemplate, const QString& folder,
        const BookPublication::Choices& choices)
    {
        // Both take the page's name; the package's is made from it.
        if (choices.kind == BookPlace::Kind::Package)
            return std::make_unique<FlashBookOutputApp>(
                std::move(pages), std::move(flashTemplate), folder, pageFileName(choices));
        return std::make_unique<FlashBookOutput>(
            std::move(pages), std::move(flashTemplate), folder, pageFileName(choices));
    }

    QString firstOf(std::initializer_list<QString> problems)
    {
        const auto isThere = [](const QString& problem) { return !problem.isEmpty(); };
        const auto first = std::ranges::find_if(problems, isThere);
        return first == problems.end() ? QString() : *first;
    }

} // namespace

BookPublication::BookPublication(const Parts& parts, const Choices& choices)
    : iChoices(choices)
    , iPlace(choices.folder, choices.kind, choices.name)
    , iPages(std::make_shared<FlashPageSourceCopy>(parts.pageSource))
    , iWriter(newWriter(iPages, parts.flashTemplate->copy(), iPlace.folder(), choices))
{
    iWriter->setHTMLConfig(htmlConfig(choices));
    iWriter->setFlashPagesAnnotations(parts.annotations);
    iWriter->setFlashOutline(parts.outline);
}

BookPublication::~BookPublication() = default;

QString BookPublication::problem() const
{
    if (const QString problem = firstOf({ nameProblem(), folderProblem() }); !problem.isEmpty())
        return problem;
    const bool isPackage = iChoices.kind == BookPlace::Kind::Package;
    return firstOf({ iPlace.nameLengthProblem(isPackage ? QFileInfo(iPlace.bookPath()).fileName()
                                                        : pageFileName(iChoices)),
        iPlace.inputProblem(filesRead()),
        roomProblem(
            bytesForBook(*iWriter), nearestExisting(iPlace.folder()), Sentences::tr("the book")) });
}

QString BookPublication::nameProblem() const
{
    const QString reason = leafcast::nameProblem(iChoices.name);
    return reason.isEmpty() ? QString() : Sentences::tr("the name can't be used: %1").arg(reason);
}

QString BookPublication::folderProblem() const
{
    if (iChoices.folder.trimmed().isEmpty())
        return Sentences::tr("the output folder has no name");
    if (const QString problem = iPlace.writingProblem(); !problem.isEmpty())
        return problem;
    // A mistyped path does not become a tree of folders.
    const QString parent = QFileInfo(iPlace.folder()).path();
    if (!QFileInfo(parent).isDir())
        return Sentences::tr("the output folder %1 can't be made: there is no folder %2")
            .arg(iPlace.folder(), parent);
    return {};
}

QStringList BookPublication::filesRead() const
{
    QStringList files;
    if (!iPages->sourceFile().isEmpty())
        files.append(iPages->sourceFile());
    for (const auto& page : iPages->normalPages())
        if (page)
            files.append(page->pageFilePath());
    forEachProperty(iWriter->flashTemplate()->properties(), [&files](const auto& property) {
        if (property.propertyType() == pt_file && !property.value().isEmpty())
            files.append(property.value());
    });
    return files;
}

void BookPublication::run()
try {
    write();
} catch (const std::exception& exception) {
    const QString reason = QString::fromUtf8(exception.what());
    LOG_ERROR("BookPublication", u"publish error:%1"_s.arg(reason));
    iFailure = Sentences::tr("the book could not be written: %1").arg(reason);
}

void BookPublication::write()
{
    if (!makeFolder()) {
        iFailure = Sentences::tr("the output folder %1 can't be made").arg(iPlace.folder());
        return;
    }
    const OutputLock lock(iPlace.folder());
    if (!lock.take()) {
        iFailure = Sentences::tr("another program is writing into %1; try again when it is done")
                       .arg(iPlace.folder());
        return;
    }
    iWriter->ouputTheBook();
    if (!isCancelled())
        iFailure = incompleteness();
}

bool BookPublication::makeFolder() const
{
    return QFileInfo(iPlace.folder()).isDir() || FileSteps::makeFolder(iPlace.folder());
}

void BookPublication::cancel()
{
    iPages->setStop(true);
}

QString BookPublication::outputFileName() const
{
    return iWriter->outputFileName();
}

QString BookPublication::incompleteness() const
{
    const BookCheck check(*iWriter);
    QStringList files = check.missingFiles;
    for (const auto& page : iPages->normalPages())
        if (page && std::ranges::count(check.pagesWithoutPicture, page->pageIndex()) > 0
            && QFileInfo(page->pageFilePath()).isFile())
            files.append(iWriter->pageFileName(*page));
    if (files.isEmpty())
        return {};
    return files.size() == 1 ? Sentences::tr("%1 could not be written").arg(files.constFirst())
                             : Sentences::tr("%1 and %2 more could not be written")
                                   .arg(files.constFirst(), QString::number(files.size() - 1));
}

} // namespace leafcast
