// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSource.h"
#include "pages/PDFImportOptions.h"
#include "pages/PDFToPageConverter.h"

namespace leafcast {

/// Pages drawn from a PDF. The files belong to the converter: they live as long as the source. A
/// document that can't be opened has no pages, and openResult() says why.
class FlashPageSourcePDF : public FlashPageSource {
public:
    /// The DPI is kept only. The quality is 0 to 100. Throws what PageRange::parse() throws.
    FlashPageSourcePDF(const QString& path, const QString& pageRange, qint32 DPI, qint32 quality,
        const PDFImportOptions& options = {});

    /// Draws the pages of the range, those that the document does not have included: they and the
    /// ones that fail stay in pages() without a file. Posts ImportProgressInfoMSG after each.
    void generatePages() override;
    /// Posts ImportProgressInfoMSG for each of pages().
    void generateNormalPages() override;

    /// By position from 0; none when there is no such position.
    std::shared_ptr<FlashPage> getPageAtIndex(quint32 position) const;
    /// By page number; none when no page has it, or once the stop flag is set.
    std::shared_ptr<FlashPage> getNormalPageAtIndex(qint32 pageNumber) const;

    const std::shared_ptr<PDFToPageConverter>& toPageConverter() const { return iToPageConverter; }
    void setToPageConverter(std::shared_ptr<PDFToPageConverter> converter);

    std::shared_ptr<const PDFDocument> document() const override { return iPDFDoc; }
    const PDFDocument::OpenResult& openResult() const { return iOpenResult; }
    const std::vector<PageReport>& pageReports() const { return iToPageConverter->pageReports(); }

    /// The page numbers of the range.
    const std::vector<qint32>& needToImportPages() const { return iNeedToImportPages; }
    const QString& pageRange() const { return iPageRange; }
    qint32 DPI() const { return iDPI; }
    qint32 quality() const { return iQuality; }

private:
    void postProgress(size_t position, const QString& type) const;
    void logPagesBeyondTheDocument() const;

    PDFDocument::OpenResult iOpenResult;
    std::shared_ptr<const PDFDocument> iPDFDoc;
    QString iPageRange;
    qint32 iDPI;
    qint32 iQuality;
    std::shared_ptr<PDFToPageConverter> iToPageConverter;
    std::vector<qint32> iNeedToImportPages;
};

} // namespace leafcast
