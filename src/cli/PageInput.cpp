// SPDX-License-Identifier: MIT
#include "cli/PageInput.h"

#include "cli/Command.h"
#include "cli/ImageInput.h"
#include "cli/OpenedPDF.h"
#include "cli/PageNumbers.h"
#include "cli/PDFImport.h"
#include "pages/FlashPageSourceImg.h"
#include "pages/FlashPageSourcePDF.h"
#include "pages/ImageFiles.h"
#include "pages/ImageHeader.h"
#include "pages/ImportSentences.h"
#include "publish/BookName.h"

#include <algorithm>
#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void reportPage(const PageReport& page, PublishReport& report)
    {
        const RenderedPage& picture = page.picture;
        report.bytes += picture.bytes;
        if (!picture.written)
            report.missingPages.push_back({ page.pageNumber, picture.problem });
        if (picture.incomplete)
            report.warnings.append(
                u"page %1: something on it could not be drawn and was left out"_s.arg(
                    page.pageNumber));
        if (picture.reduced)
            report.warnings.append(
                u"page %1 is very large and was drawn smaller, at %2 x %3 pixels"_s
                    .arg(page.pageNumber)
                    .arg(picture.width)
                    .arg(picture.height));
    }

    void requireAPicture(const std::vector<PageReport>& pages, const QString& path)
    {
        const QString problem = ImportSentences::noPageDrawn(path, pages);
        if (!problem.isEmpty())
            throw CommandFailure(ExitCode::InputUnreadable, problem);
    }

    void takeFirstPageSize(const PDFDocument& document, PageInput& input)
    {
        const auto page = document.pageAtIndex(0);
        if (!page)
            return;
        input.pageWidth = static_cast<int>(page->boundsForBox(PDFBox::CropBox).width);
        input.pageHeight = static_cast<int>(page->boundsForBox(PDFBox::CropBox).height);
    }

    PageInput readPDF(const PublishOptions& options, PublishReport& report)
    {
        const QString path = options.inputs().constFirst();
        const QString password = options.passwordOptions.chosen();
        const auto document = openPDF({ path, password, options.limits });
        if (document->isRepaired())
            report.warnings.append(u"%1 is damaged; what could be mended was read"_s.arg(path));
        pageNumbers(fromArgument(options.pages), path, document->pageCount());

        PageInput input = importPDF(options, document);
        const auto& pages
            = dynamic_cast<const FlashPageSourcePDF&>(*input.pageSource).pageReports();
        requireAPicture(pages, path);
        for (const PageReport& page : pages)
            reportPage(page, report);
        takeFirstPageSize(*document, input);
        input.title = document->title().isEmpty() ? nameOfInput(path) : document->title();
        return input;
    }

    void addPicture(const QString& path, FlashPageSourceImg& source, PublishReport& report)
    {
        source.addImgPageFromFile(path);
        report.bytes += QFileInfo(path).size();
        if (ImageFiles::isCutOff(path))
            report.warnings.append(u"the end of the image %1 is missing"_s.arg(path));
    }

    PageInput readImages(const PublishOptions& options, PublishReport& report)
    {
        const QStringList paths = imagePaths(options.inputs());
        const auto numbers = pageNumbers(fromArgument(options.pages),
            options.inputs().join(u", "_s), static_cast<int>(paths.size()));
        const auto source = std::make_shared<FlashPageSourceImg>();
        for (const qint32 number : numbers) {
            if (number < 1 || number > paths.size()) {
                report.missingPages.push_back(
                    { number, u"there are only %1 images"_s.arg(paths.size()) });
                continue;
            }
            addPicture(paths.at(number - 1), *source, report);
        }
        source->generateNormalPages();

        const QSize size = ImageHeader::sizeInPoints(source->pages().front()->pageFilePath());
        return { source, nullptr, nullptr, nameOfInput(options.inputs().constFirst()), size.width(),
            size.height() };
    }

    bool isAllImages(const QStringList& inputs)
    {
        return std::all_of(inputs.begin(), inputs.end(), isImageInput);
    }

} // namespace

PageInput readPages(const PublishOptions& options, PublishReport& report)
{
    const QStringList inputs = options.inputs();
    report.input = inputs.join(u", "_s);
    if (inputs.size() > 1 && !isAllImages(inputs))
        throw CommandFailure(ExitCode::WrongUsage,
            u"%1: give one PDF, or only images and folders of them"_s.arg(report.input));
    QElapsedTimer clock;
    clock.start();
    PageInput input = isAllImages(inputs) ? readImages(options, report) : readPDF(options, report);
    report.importSeconds = static_cast<double>(clock.elapsed()) / 1000;
    return input;
}

} // namespace leafcast
