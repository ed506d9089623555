// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourcePDF.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "pages/ImportNotifications.h"
#include "pages/PDFToSWFPageConverter.h"

#include <algorithm>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    PDFDocument::OpenResult opened(const QString& path, const PDFImportOptions& options)
    {
        if (options.opened)
            return { options.opened, PDFOpenError::None, {} };
        return PDFDocument::open({ path, options.password, options.limits });
    }

} // namespace

FlashPageSourcePDF::FlashPageSourcePDF(const QString& path, const QString& pageRange, qint32 DPI,
    qint32 quality, const PDFImportOptions& options)
    : iOpenResult(opened(path, options))
    , iPDFDoc(iOpenResult.document)
    , iPageRange(pageRange)
    , iDPI(DPI)
    , iQuality(quality)
    , iToPageConverter(
          std::make_shared<PDFToSWFPageConverter>(path, iPDFDoc, quality, options.workers))
    , iNeedToImportPages(parsePageRange(pageRange, iPDFDoc ? iPDFDoc->pageCount() : 0))
{
    setSourceFile(path);
    if (!iPDFDoc)
        LOG_WARN("FlashPageSourcePDF", u"can't open %1: %2"_s.arg(path, iOpenResult.reason));
}

void FlashPageSourcePDF::generatePages()
{
    logPagesBeyondTheDocument();
    iToPageConverter->planPages(iNeedToImportPages);
    const auto end = qScopeGuard([this] { iToPageConverter->abandonPlan(); });
    for (size_t i = 0; i < iNeedToImportPages.size() && !stop(); ++i) {
        const qint32 number = iNeedToImportPages[i];
        const QString path = iToPageConverter->generatePage(number);
        pages().push_back(std::make_shared<FlashPage>(path, number));
        postProgress(i + 1, u"geneatePage"_s);
    }
}

void FlashPageSourcePDF::generateNormalPages()
{
    auto taken = numbersOfNormalPages();
    for (size_t i = 0; i < pages().size() && !stop(); ++i) {
        const FlashPage& page = *pages()[i];
        if (taken.insert(page.pageIndex()).second)
            normalPages().push_back(page.copyPage(100, 100));
        postProgress(i + 1, u"geneateNormalPage"_s);
    }
}

std::shared_ptr<FlashPage> FlashPageSourcePDF::getPageAtIndex(quint32 position) const
{
    return pageAtPosition(position);
}

std::shared_ptr<FlashPage> FlashPageSourcePDF::getNormalPageAtIndex(qint32 pageNumber) const
{
    for (const auto& page : normalPages()) {
        if (stop())
            return nullptr;
        if (page && page->pageIndex() == pageNumber)
            return page;
    }
    return nullptr;
}

void FlashPageSourcePDF::setToPageConverter(std::shared_ptr<PDFToPageConverter> converter)
{
    iToPageConverter = std::move(converter);
}

void FlashPageSourcePDF::postProgress(size_t position, const QString& type) const
{
    NotificationCenter::defaultCenter().post(ImportProgressInfoMSG,
        { { u"pageIndex"_s, static_cast<int>(position) },
            { u"totalPage"_s, static_cast<int>(iNeedToImportPages.size()) }, { u"type"_s, type } });
}

/// One line for all of them: a range such as 5-9999 is how people write "to the end".
void FlashPageSourcePDF::logPagesBeyondTheDocument() const
{
    if (!iPDFDoc)
        return;
    const auto isMissing
        = [this](qint32 number) { return number < 1 || number > iPDFDoc->pageCount(); };
    const auto missing
        = std::count_if(iNeedToImportPages.begin(), iNeedToImportPages.end(), isMissing);
    if (missing > 0)
        LOG_WARN("FlashPageSourcePDF",
            u"%1 has %2 pages; the range %3 asks for %4 that it does not have"_s.arg(sourceFile(),
                QString::number(iPDFDoc->pageCount()), iPageRange, QString::number(missing)));
}

} // namespace leafcast
