// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"
#include "pdf/PDFImageRep.h"

#include <memory>
#include <QString>
#include <QStringList>
#include <vector>

namespace leafcast {

/// What became of one page that was asked for.
struct PageReport {
    qint32 pageNumber = 0; // in the PDF, from 1
    RenderedPage picture;
};

/// Makes page files from a PDF in a work folder of its own, which is removed with everything in it
/// when the converter is destroyed. This base makes none.
class PDFToPageConverter {
public:
    /// No document is one that could not be opened.
    PDFToPageConverter(
        const QString& PDFPath, std::shared_ptr<const PDFDocument> PDFDoc, qint32 quality);
    virtual ~PDFToPageConverter();
    PDFToPageConverter(const PDFToPageConverter&) = delete;
    PDFToPageConverter& operator=(const PDFToPageConverter&) = delete;

    /// The path of the page's file, whether or not one could be made.
    virtual QString generatePage(qint32 pageNumber);
    virtual QStringList generatePages(qint32 count);
    virtual QStringList generateAllPage();

    /// Tells which pages will be asked for, in that order, so that they can be made ahead.
    virtual void planPages(const std::vector<qint32>& pageNumbers);
    /// No more of them will be asked for: ends what is under way.
    virtual void abandonPlan();

    /// One for each page that was asked for, in that order.
    const std::vector<PageReport>& pageReports() const { return iPageReports; }

    qint32 quality() const { return iQuality; } // 0 to 100
    void setQuality(qint32 quality) { iQuality = quality; }

    const QString& PDFPath() const { return iPDFPath; }
    void setPDFPath(const QString& path) { iPDFPath = path; }

    const QString& converterWorkFolder() const { return iConverterWorkFolder; }
    void setConverterWorkFolder(const QString& path) { iConverterWorkFolder = path; }

    /// Kept for its readers; pages are drawn at a fixed scale.
    qint32 DPI() const { return iDPI; }
    void setDPI(qint32 DPI) { iDPI = DPI; }

    const std::shared_ptr<const PDFDocument>& PDFDoc() const { return iPDFDoc; }
    void setPDFDoc(std::shared_ptr<const PDFDocument> document) { iPDFDoc = std::move(document); }

protected:
    /// The page number and the extension, such as ".jpg", in the work folder.
    QString pageFile(qint32 pageNumber, const QString& extension) const;
    void report(qint32 pageNumber, const RenderedPage& picture);

private:
    qint32 iQuality;
    QString iPDFPath;
    QString iConverterWorkFolder;
    qint32 iDPI = 144;
    std::shared_ptr<const PDFDocument> iPDFDoc;
    std::vector<PageReport> iPageReports;
};

} // namespace leafcast
