// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutline.h"
#include "pdf/PDFDocument.h"

namespace leafcast {

/// An outline from a PDF's bookmarks. Page numbers are those of the whole PDF; entries that lead
/// outside the imported pages are kept.
class FlashOutlinePDF : public FlashOutline {
public:
    /// Appends the document's entries; none without a document or an outline.
    void loadOutlineFromPDF(const PDFDocument* document);

    /// Appends the entries below a node of the PDF's outline to the parent, one level deeper. The
    /// depth is limited by PDFOutline.
    static void addOutelineToItems(
        FlashOutlineItem& parent, const PDFOutline& outline, qint32 parentLevel);
};

} // namespace leafcast
