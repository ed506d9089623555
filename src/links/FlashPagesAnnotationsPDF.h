// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashPagesAnnotations.h"
#include "pdf/PDFDocument.h"

#include <memory>
#include <vector>

namespace leafcast {

/// The link records of a PDF's pages. A "pageAnnos" is numbered by its place in the range; the
/// target of a link to a page is the page's number in the whole PDF, whether or not it is in the
/// range.
class FlashPagesAnnotationsPDF : public FlashPagesAnnotations {
public:
    /// Replaces the tree and empties the list of files. Without a document every page of the range
    /// is a page without links. Throws what PageRange::parse() throws.
    void loadLinksFromPDF(std::shared_ptr<const PDFDocument> document, const QString& pageRange);

    /// Appends the "pageAnnos" of the page whose turn it is. Only while a load goes on.
    void parsePage();

    const std::shared_ptr<const PDFDocument>& pdfDoc() const { return iPDFDoc; }
    void setPdfDoc(std::shared_ptr<const PDFDocument> document) { iPDFDoc = std::move(document); }

private:
    void appendRecords(XMLElement pageNode, const PDFPage& page) const;

    std::vector<qint32> iNeedToImportPages;
    std::shared_ptr<const PDFDocument> iPDFDoc;
    qint32 iCurrentIndex = 0;
};

} // namespace leafcast
