// SPDX-License-Identifier: MIT
#include "publish/ReaderPages.h"

#include "pages/ImageHeader.h"
#include "pdf/PDFTextReader.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool isInDocument(const PDFDocument& document, int pageNumber)
    {
        return pageNumber >= 1 && pageNumber <= document.pageCount();
    }

    std::vector<int> indicesOfPages(
        const FlashPageSource::Pages& pages, const PDFDocument& document)
    {
        std::vector<int> indices;
        for (const auto& page : pages)
            if (isInDocument(document, page->pageIndex()))
                indices.push_back(page->pageIndex() - 1);
        return indices;
    }

} // namespace

ReaderPages::ReaderPages(const ReaderBook& book)
    : iBook(book)
    , iPlaces(book.pageSource.normalPages())
    , iPages(book.pageSource.normalPages())
    , iDocument(book.pageSource.document())
{
    std::erase(iPages, nullptr);
    if (iDocument)
        iTextReader = std::make_unique<PDFTextReader>(
            iDocument->source(), indicesOfPages(iPages, *iDocument), book.workers);
}

ReaderPages::~ReaderPages() = default;

ReaderPage ReaderPages::next()
{
    const FlashPage& source = *iPages.at(iNext++);
    const QSize pixels = ImageHeader::sizeInPixels(source.pageFilePath());
    ReaderPage page;
    page.number = source.pageIndex();
    page.label = QString::number(page.number);
    page.image = iBook.imageURL(source);
    page.width = pixels.width();
    page.height = pixels.height();
    if (iDocument && isInDocument(*iDocument, page.number))
        addFromDocument(page);
    return page;
}

void ReaderPages::addFromDocument(ReaderPage& page)
{
    page.lines = iTextReader->next();
    const auto pdfPage = iDocument->pageAtIndex(page.number - 1);
    if (!pdfPage)
        return;
    if (!pdfPage->label().isEmpty())
        page.label = pdfPage->label();
    if (iBook.withLinks)
        page.links = linksOf(*pdfPage);
}

std::vector<ReaderLink> ReaderPages::linksOf(const PDFPage& page) const
{
    std::vector<ReaderLink> links;
    for (const PDFAnnotation& annotation : iDocument->annotationsOfPage(page.index())) {
        auto link = linkFrom(annotation);
        if (!link)
            continue;
        link->area = page.displayed(annotation.bounds);
        // Nothing is left of an area outside the crop box.
        if (link->area.width > 0 && link->area.height > 0)
            links.push_back(std::move(*link));
    }
    return links;
}

std::optional<ReaderLink> ReaderPages::linkFrom(const PDFAnnotation& annotation) const
{
    if (annotation.type != u"Link")
        return std::nullopt;
    ReaderLink link;
    if (annotation.URL) {
        if (!isPublishableURL(*annotation.URL))
            return std::nullopt;
        link.url = annotation.URL;
        return link;
    }
    if (!annotation.destination || annotation.destination->pageIndex < 0)
        return std::nullopt;
    link.page = annotation.destination->pageIndex + 1;
    link.place = iPlaces.placeOf(link.page);
    return link;
}

bool ReaderPages::isPublishableURL(const QString& url)
{
    static const QRegularExpression scheme(
        u"^(https?|mailto|tel):"_s, QRegularExpression::CaseInsensitiveOption);
    return scheme.match(url).hasMatch();
}

} // namespace leafcast
