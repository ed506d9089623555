// SPDX-License-Identifier: MIT
#include "pages/import/ImageImport.h"

#include "base/NamedException.h"
#include "base/Sentences.h"
#include "pages/ImageFiles.h"
#include "pages/ImageHeader.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString problemOf(const QStringList& files)
    {
        for (const QString& file : files)
            if (const QString reason = ImageFiles::problem(file); !reason.isEmpty())
                return Sentences::tr("%1 can't be used: %2").arg(file, reason);
        return {};
    }

    QString addPages(FlashPageSourceImg& source, const QStringList& files, const QString& range)
    try {
        const int count = static_cast<int>(files.size());
        for (const qint32 number : FlashPageSource::parsePageRange(range, count))
            if (number >= 1 && number <= count)
                source.addImgPageFromFile(files.at(number - 1));
        return source.pages().empty()
            ? Sentences::tr("the page range names none of the %1 images").arg(count)
            : QString();
    } catch (const NamedException& exception) {
        return exception.reason();
    }

} // namespace

ImageImport::ImageImport(const QStringList& files, const QString& range)
    : problem(problemOf(files))
{
    if (!problem.isEmpty())
        return;
    const auto source = std::make_shared<FlashPageSourceImg>();
    problem = addPages(*source, files, range);
    if (!problem.isEmpty())
        return;
    source->generateNormalPages();
    pageSize = ImageHeader::sizeInPoints(source->pages().front()->pageFilePath());
    pageSource = source;
}

} // namespace leafcast
