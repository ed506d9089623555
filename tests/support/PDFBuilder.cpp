// SPDX-License-Identifier: MIT
#include "support/PDFBuilder.h"

#include <algorithm>

namespace leafcast {

namespace {

    constexpr int Catalogue = 1;
    constexpr int PageTree = 2;
    constexpr int Font = 3;

    QByteArray escaped(const QByteArray& text)
    {
        QByteArray result = text;
        result.replace('\\', "\\\\");
        result.replace('(', "\\(");
        result.replace(')', "\\)");
        return '(' + result + ')';
    }

    QByteArray linkEntries(const PDFBuilder::Box& rect)
    {
        return "/Subtype /Link /Border [0 0 0] /Rect " + PDFBuilder::box(rect);
    }

} // namespace

PDFBuilder::PDFBuilder()
    : iObjects(Font)
{
    replaceObject(Font, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
}

int PDFBuilder::addPage(const Page& page)
{
    PageRecord record;
    record.page = page;
    record.object = addObject({});
    record.contentObject = addStream({}, page.content);
    iPages.push_back(record);
    return static_cast<int>(iPages.size()) - 1;
}

int PDFBuilder::addPage()
{
    return addPage(Page{});
}

void PDFBuilder::addURLLink(int page, const Box& rect, const QByteArray& url)
{
    addAnnotation(page, linkEntries(rect) + " /A << /S /URI /URI " + escaped(url) + " >>");
}

void PDFBuilder::addPageLink(int page, const Box& rect, int targetPage)
{
    addAnnotation(page, linkEntries(rect) + ' ' + explicitDestination(targetPage));
}

void PDFBuilder::addNamedLink(int page, const Box& rect, const QByteArray& name)
{
    addAnnotation(page, linkEntries(rect) + " /Dest " + escaped(name));
}

int PDFBuilder::addAnnotation(int page, const QByteArray& entries)
{
    const int object = addObject("<< /Type /Annot " + entries + " >>");
    iPages.at(static_cast<size_t>(page)).annotations.push_back(object);
    return object;
}

void PDFBuilder::setOutline(const std::vector<OutlineEntry>& entries)
{
    const int root = addObject({});
    replaceObject(root, "<< /Type /Outlines" + addOutlineLevel(entries, root) + " >>");
    addCatalogueEntries("/Outlines " + reference(root));
}

QByteArray PDFBuilder::addOutlineLevel(const std::vector<OutlineEntry>& entries, int parent)
{
    if (entries.empty())
        return {};
    const int first = static_cast<int>(iObjects.size()) + 1;
    const int last = first + static_cast<int>(entries.size()) - 1;
    iObjects.resize(static_cast<size_t>(last));
    for (int object = first; object <= last; ++object) {
        const OutlineEntry& entry = entries[static_cast<size_t>(object - first)];
        QByteArray body = "<< /Title " + textString(entry.label) + " /Parent " + reference(parent);
        if (object > first)
            body += " /Prev " + reference(object - 1);
        if (object < last)
            body += " /Next " + reference(object + 1);
        body += addOutlineLevel(entry.children, object);
        replaceObject(object, body + ' ' + entry.target + " >>");
    }
    return " /First " + reference(first) + " /Last " + reference(last);
}

void PDFBuilder::setTitle(const QString& title)
{
    iInfoObject = addObject("<< /Title " + textString(title) + " >>");
}

void PDFBuilder::setPageLabels(const QByteArray& numbers)
{
    addCatalogueEntries("/PageLabels << /Nums [" + numbers + "] >>");
}

void PDFBuilder::addNamedDestination(const QByteArray& name, int page)
{
    iNamedDestinations.push_back({ name, page });
}

void PDFBuilder::addCatalogueEntries(const QByteArray& entries)
{
    iCatalogueEntries += ' ' + entries;
}

int PDFBuilder::addObject(const QByteArray& body)
{
    iObjects.push_back(body);
    return static_cast<int>(iObjects.size());
}

int PDFBuilder::addStream(const QByteArray& entries, const QByteArray& data)
{
    return addObject("<< " + entries + " /Length " + QByteArray::number(data.size())
        + " >>\nstream\n" + data + "\nendstream");
}

void PDFBuilder::replaceObject(int number, const QByteArray& body)
{
    iObjects.at(static_cast<size_t>(number) - 1) = body;
}

int PDFBuilder::pageObject(int page) const
{
    return iPages.at(static_cast<size_t>(page)).object;
}

QByteArray PDFBuilder::explicitDestination(int page) const
{
    return "/Dest [" + reference(pageObject(page)) + " /Fit]";
}

QByteArray PDFBuilder::build() const
{
    std::vector<QByteArray> objects = iObjects;
    objects[Catalogue - 1] = catalogueBody();
    objects[PageTree - 1] = kidsBody();
    for (size_t i = 0; i < iPages.size(); ++i) {
        QByteArray& body = objects[static_cast<size_t>(iPages[i].object) - 1];
        if (body.isEmpty()) // else a test has replaced it
            body = pageBody(i);
    }

    QByteArray file = "%PDF-1.7\n";
    QByteArray xref = "0000000000 65535 f \n";
    for (size_t i = 0; i < objects.size(); ++i) {
        xref += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(file.size());
    file += "xref\n0 " + size + '\n' + xref + "trailer\n<< /Size " + size + " /Root "
        + reference(Catalogue);
    if (iInfoObject > 0)
        file += " /Info " + reference(iInfoObject);
    return file + " >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray PDFBuilder::catalogueBody() const
{
    QByteArray body = "<< /Type /Catalog /Pages " + reference(PageTree) + iCatalogueEntries;
    if (!iNamedDestinations.empty()) {
        std::vector<NamedDestination> sorted = iNamedDestinations;
        std::sort(sorted.begin(), sorted.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
        body += " /Names << /Dests << /Names [";
        for (const NamedDestination& named : sorted)
            body += ' ' + escaped(named.name) + " [" + reference(pageObject(named.page)) + " /Fit]";
        body += " ] >> >>";
    }
    return body + " >>";
}

QByteArray PDFBuilder::kidsBody() const
{
    QByteArray kids;
    for (const PageRecord& record : iPages)
        kids += reference(record.object) + ' ';
    return "<< /Type /Pages /Count " + QByteArray::number(iPages.size()) + " /Kids [ " + kids
        + "] >>";
}

QByteArray PDFBuilder::pageBody(size_t index) const
{
    const PageRecord& record = iPages[index];
    const Page& page = record.page;
    QByteArray body = "<< /Type /Page /Parent " + reference(PageTree) + " /MediaBox "
        + box(page.mediaBox) + " /Contents " + reference(record.contentObject)
        + " /Resources << /Font << /F1 " + reference(Font) + " >> " + page.resources + " >>";
    if (page.cropBox)
        body += " /CropBox " + box(*page.cropBox);
    if (page.rotation != 0)
        body += " /Rotate " + QByteArray::number(page.rotation);
    if (page.userUnit != 1)
        body += " /UserUnit " + QByteArray::number(page.userUnit);
    if (!record.annotations.empty()) {
        body += " /Annots [ ";
        for (const int annotation : record.annotations)
            body += reference(annotation) + ' ';
        body += ']';
    }
    return body + ' ' + page.entries + " >>";
}

QByteArray PDFBuilder::reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray PDFBuilder::box(const Box& box)
{
    QByteArray text = "[";
    for (const double value : { box.left, box.bottom, box.right, box.top })
        text += QByteArray::number(value, 'g', 12) + ' ';
    text.chop(1);
    return text + ']';
}

QByteArray PDFBuilder::textString(const QString& text)
{
    QByteArray hexadecimal = "<FEFF";
    for (const QChar unit : text)
        hexadecimal += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    return hexadecimal + '>';
}

QByteArray PDFBuilder::showText(const QByteArray& text, double x, double y, double size)
{
    return "BT /F1 " + QByteArray::number(size) + " Tf " + QByteArray::number(x) + ' '
        + QByteArray::number(y) + " Td " + escaped(text) + " Tj ET\n";
}

} // namespace leafcast
