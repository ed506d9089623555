// SPDX-License-Identifier: MIT
#pragma once

#include "pages/PDFToPageConverter.h"

namespace leafcast {

/// Draws pages to JPEG files named after the page number, at twice their size in points. A page
/// whose file "NUMBER.swf" lies ready in the work folder is not drawn.
class PDFToSWFPageConverter : public PDFToPageConverter {
public:
    /// workers: of the PDF service; 0: one a processor core.
    PDFToSWFPageConverter(const QString& PDFPath, std::shared_ptr<const PDFDocument> PDFDoc,
        qint32 quality, int workers = 0);

    /// Without a document the path names an SWF file that is not there.
    QString generatePage(qint32 pageNumber) override;

    /// Writes the page's JPEG file to the work folder, whatever the path says. A page that can't be
    /// drawn is left without a file.
    void pdfPageToImage(qint32 pageNumber, const QString& path);

    void planPages(const std::vector<qint32>& pageNumbers) override;
    /// Lets go of the workers too; a page that is asked for later starts new ones.
    void abandonPlan() override;

    /// The resource "pdf2swf" of the folder "lib"; empty when there is none. Nothing starts it.
    static QString getPDF2swfLibPath();

private:
    bool hasPage(qint32 pageNumber) const;
    bool hasReadyFile(qint32 pageNumber) const;
    PDFImageRep& imageRep();

    int iWorkers;
    std::vector<int> iPlannedIndices;
    std::unique_ptr<PDFImageRep> iPDFRep;
};

} // namespace leafcast
