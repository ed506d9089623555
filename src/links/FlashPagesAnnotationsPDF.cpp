// SPDX-License-Identifier: MIT
#include "links/FlashPagesAnnotationsPDF.h"

#include "base/Log.h"
#include "pages/FlashPageSource.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    const auto linkClass = u"com.vexmoor.flipbook.pageeditor.TAnnoLink"_s;
    const auto openURLClass = u"com.vexmoor.flipbook.pageeditor.TAnnoActionOpenURL"_s;
    const auto goToPageClass = u"com.vexmoor.flipbook.pageeditor.TAnnoActionGotoPage"_s;

    QString described(const PDFRect& rect)
    {
        return u"{{%1, %2}, {%3, %4}}"_s.arg(rect.x).arg(rect.y).arg(rect.width).arg(rect.height);
    }

    void logAnnotation(size_t index, const PDFAnnotation& annotation)
    {
        const auto& destination = annotation.destination;
        LOG_DEBUG("FlashPagesAnnotationsPDF",
            u"%1:%2,%3,d:%4,url:%5"_s.arg(QString::number(index), annotation.type,
                described(annotation.bounds),
                destination ? u"page %1"_s.arg(destination->pageIndex + 1) : u"(null)"_s,
                annotation.URL.value_or(u"(null)"_s)));
    }

    bool isFollowed(const PDFAnnotation& annotation)
    {
        return annotation.type == u"Link"_s && (annotation.URL || annotation.destination);
    }

    void appendURL(XMLElement action, const QString& url)
    {
        action.addAttribute(u"actionType"_s, openURLClass);
        action.addChild(u"url"_s).setStringValue(url);
    }

    void appendPage(XMLElement action, int number)
    {
        action.addAttribute(u"actionType"_s, goToPageClass);
        action.addChild(u"pageIndex"_s).setStringValue(QString::number(number));
    }

    void appendLocation(XMLElement record, const LinkLocation& location)
    {
        XMLElement node = record.addChild(u"location"_s);
        node.addAttribute(u"x"_s, LinkLocation::text(location.x));
        node.addAttribute(u"y"_s, LinkLocation::text(location.y));
        node.addAttribute(u"width"_s, LinkLocation::text(location.width));
        node.addAttribute(u"height"_s, LinkLocation::text(location.height));
    }

} // namespace

void FlashPagesAnnotationsPDF::loadLinksFromPDF(
    std::shared_ptr<const PDFDocument> document, const QString& pageRange)
{
    setPdfDoc(std::move(document));
    iNeedToImportPages
        = FlashPageSource::parsePageRange(pageRange, iPDFDoc ? iPDFDoc->pageCount() : 0);
    iCurrentIndex = 0;
    needFiles().clear();
    iLoadedPages = std::make_shared<std::vector<PageLinks>>();
    setPagesAnnotationsNodeMadeBy([pages = iLoadedPages] { return treeOf(*pages); });
    for (; iCurrentIndex < static_cast<qint32>(iNeedToImportPages.size()); ++iCurrentIndex)
        parsePage();
}

void FlashPagesAnnotationsPDF::parsePage()
{
    const qint32 number = iNeedToImportPages.at(static_cast<size_t>(iCurrentIndex));
    LOG_DEBUG("FlashPagesAnnotationsPDF", u"page is:%1"_s.arg(number));
    const bool isInDocument = iPDFDoc && number >= 1 && number <= iPDFDoc->pageCount();
    const auto page = isInDocument ? iPDFDoc->pageAtIndex(number - 1) : std::nullopt;
    iLoadedPages->push_back(page ? linksOf(*page) : PageLinks());
}

FlashPagesAnnotationsPDF::PageLinks FlashPagesAnnotationsPDF::linksOf(const PDFPage& page) const
{
    const auto annotations = iPDFDoc->annotationsOfPage(page.index());
    if (!annotations.empty())
        LOG_DEBUG("FlashPagesAnnotationsPDF", u"count is:%1"_s.arg(annotations.size()));
    PageLinks links;
    for (size_t i = 0; i < annotations.size(); ++i) {
        const PDFAnnotation& annotation = annotations[i];
        logAnnotation(i, annotation);
        if (!isFollowed(annotation))
            continue;
        const int target = annotation.destination ? annotation.destination->pageIndex + 1 : 0;
        links.push_back({ annotation.URL, target,
            LinkLocation::of(
                annotation.bounds, page.boundsForBox(PDFBox::CropBox), page.rotation()) });
    }
    return links;
}

XMLElement FlashPagesAnnotationsPDF::treeOf(const std::vector<PageLinks>& pages)
{
    XMLElement root(u"pagesAnnos"_s);
    for (size_t i = 0; i < pages.size(); ++i) {
        XMLElement pageNode = root.addChild(u"pageAnnos"_s);
        pageNode.addAttribute(u"pageIndex"_s, QString::number(i + 1));
        for (const Link& link : pages[i])
            appendRecord(pageNode, link);
    }
    return root;
}

void FlashPagesAnnotationsPDF::appendRecord(XMLElement& pageNode, const Link& link)
{
    XMLElement record = pageNode.addChild(u"anno"_s);
    record.addAttribute(u"annotype"_s, linkClass);
    XMLElement action = record.addChild(u"action"_s);
    action.addAttribute(u"triggerEventType"_s, u"mouseDown"_s);
    if (link.URL)
        appendURL(action, *link.URL);
    else
        appendPage(action, link.pageNumber);
    appendLocation(record, link.location);
}

} // namespace leafcast
