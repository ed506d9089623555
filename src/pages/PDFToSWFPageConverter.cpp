// SPDX-License-Identifier: MIT
#include "pages/PDFToSWFPageConverter.h"

#include "base/ResourceFolder.h"
#include "base/Sentences.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr double pixelsPerPoint = 2.0;

    /// The whole-number division is deliberate: every quality below 100 is the strongest
    /// compression.
    double compressionFactor(qint32 quality)
    {
        return quality / 100; // NOLINT(bugprone-integer-division)
    }

    RenderedPage notDrawn(const QString& problem)
    {
        RenderedPage page;
        page.problem = problem;
        return page;
    }

    RenderedPage readyFile(const QString& path)
    {
        RenderedPage page;
        page.written = true;
        page.bytes = QFileInfo(path).size();
        return page;
    }

} // namespace

PDFToSWFPageConverter::PDFToSWFPageConverter(
    const QString& PDFPath, std::shared_ptr<const PDFDocument> PDFDoc, qint32 quality, int workers)
    : PDFToPageConverter(PDFPath, std::move(PDFDoc), quality)
    , iWorkers(workers)
{
}

QString PDFToSWFPageConverter::generatePage(qint32 pageNumber)
{
    QString swf = pageFile(pageNumber, u".swf"_s);
    if (hasReadyFile(pageNumber)) {
        report(pageNumber, readyFile(swf));
        return swf;
    }
    if (!PDFDoc()) {
        report(pageNumber, notDrawn(Sentences::tr("the document could not be opened")));
        return swf;
    }
    QString jpg = pageFile(pageNumber, u".jpg"_s);
    pdfPageToImage(pageNumber, jpg);
    return jpg;
}

void PDFToSWFPageConverter::pdfPageToImage(qint32 pageNumber, const QString& /*path*/)
{
    if (!PDFDoc())
        return;
    if (!hasPage(pageNumber))
        return report(pageNumber, notDrawn(Sentences::tr("the document has no such page")));
    report(pageNumber, imageRep().drawPage(pageNumber - 1, pageFile(pageNumber, u".jpg"_s)));
}

void PDFToSWFPageConverter::planPages(const std::vector<qint32>& pageNumbers)
{
    iPlannedIndices.clear();
    for (const qint32 number : pageNumbers)
        if (hasPage(number) && !hasReadyFile(number))
            iPlannedIndices.push_back(number - 1);
    if (iPDFRep)
        iPDFRep->plan(iPlannedIndices);
}

void PDFToSWFPageConverter::abandonPlan()
{
    iPlannedIndices.clear();
    iPDFRep.reset();
}

QString PDFToSWFPageConverter::getPDF2swfLibPath()
{
    return ResourceFolder::pathForResource(u"pdf2swf"_s, u""_s, u"lib"_s);
}

bool PDFToSWFPageConverter::hasPage(qint32 pageNumber) const
{
    return PDFDoc() && pageNumber >= 1 && pageNumber <= PDFDoc()->pageCount();
}

bool PDFToSWFPageConverter::hasReadyFile(qint32 pageNumber) const
{
    return QFileInfo::exists(pageFile(pageNumber, u".swf"_s));
}

PDFImageRep& PDFToSWFPageConverter::imageRep()
{
    if (!iPDFRep) {
        const PDFImageRep::Options options{ .scale = pixelsPerPoint,
            .jpeg = jpegSettings(compressionFactor(quality())),
            .workFolder = converterWorkFolder(),
            .workers = iWorkers };
        iPDFRep = std::make_unique<PDFImageRep>(PDFDoc()->source(), options);
        iPDFRep->plan(iPlannedIndices);
    }
    return *iPDFRep;
}

} // namespace leafcast
