// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashPagesAnnotations.h"
#include "links/LinkLocation.h"
#include "pdf/PDFDocument.h"

#include <memory>
#include <vector>

namespace leafcast {

/// The link records of a PDF's pages. A "pageAnnos" is numbered by its place in the range; the
/// target of a link to a page is the page's number in the whole PDF, whether or not it is in the
/// range. The links are kept as values and the tree is made when it is first asked for: it takes 3
/// KiB a link, which is 100 MiB for a manual of 5,000 pages.
class FlashPagesAnnotationsPDF : public FlashPagesAnnotations {
public:
    /// Replaces the tree and empties the list of files. Without a document every page of the range
    /// is a page without links. Throws what PageRange::parse() throws.
    void loadLinksFromPDF(std::shared_ptr<const PDFDocument> document, const QString& pageRange);

    /// Adds the links of the page whose turn it is. Only while a load goes on.
    void parsePage();

    const std::shared_ptr<const PDFDocument>& pdfDoc() const { return iPDFDoc; }
    void setPdfDoc(std::shared_ptr<const PDFDocument> document) { iPDFDoc = std::move(document); }

private:
    struct Link {
        std::optional<QString> URL;
        int pageNumber = 0; // from 1; of a link without URL
        LinkLocation location;
    };
    using PageLinks = std::vector<Link>;

    PageLinks linksOf(const PDFPage& page) const;
    static XMLElement treeOf(const std::vector<PageLinks>& pages);
    static void appendRecord(XMLElement& pageNode, const Link& link);

    /// By their place in the range. Shared with what makes the tree of them.
    std::shared_ptr<std::vector<PageLinks>> iLoadedPages;
    std::vector<qint32> iNeedToImportPages;
    std::shared_ptr<const PDFDocument> iPDFDoc;
    qint32 iCurrentIndex = 0;
};

} // namespace leafcast
