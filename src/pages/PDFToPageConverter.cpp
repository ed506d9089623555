// SPDX-License-Identifier: MIT
#include "pages/PDFToPageConverter.h"

#include "base/FileSteps.h"
#include "settings/HXCUtility.h"

using namespace Qt::StringLiterals;

namespace leafcast {

PDFToPageConverter::PDFToPageConverter(
    const QString& PDFPath, std::shared_ptr<const PDFDocument> PDFDoc, qint32 quality)
    : iQuality(quality)
    , iPDFPath(PDFPath)
    , iConverterWorkFolder(HXCUtility::forceTmpDiractory(u"Leafcast"_s))
    , iPDFDoc(std::move(PDFDoc))
{
}

PDFToPageConverter::~PDFToPageConverter()
{
    FileSteps::remove(iConverterWorkFolder);
}

QString PDFToPageConverter::generatePage(qint32 /*pageNumber*/)
{
    return {};
}

QStringList PDFToPageConverter::generatePages(qint32 /*count*/)
{
    return {};
}

QStringList PDFToPageConverter::generateAllPage()
{
    return {};
}

void PDFToPageConverter::planPages(const std::vector<qint32>& /*pageNumbers*/) { }

void PDFToPageConverter::abandonPlan() { }

QString PDFToPageConverter::pageFile(qint32 pageNumber, const QString& extension) const
{
    return iConverterWorkFolder + u'/' + QString::number(pageNumber) + extension;
}

void PDFToPageConverter::report(qint32 pageNumber, const RenderedPage& picture)
{
    iPageReports.push_back({ pageNumber, picture });
}

} // namespace leafcast
