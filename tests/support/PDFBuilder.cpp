// SPDX-License-Identifier: MIT
#include "support/PDFBuilder.h"

#include <QStringEncoder>

namespace leafcast {

namespace {

    constexpr int Catalogue = 1;
    constexpr int PageTree = 2;
    constexpr int Font = 3;

    // As hexadecimal syntax, which needs no escapes.
    QByteArray byteString(const QByteArray& bytes)
    {
        return '<' + bytes.toHex() + '>';
    }

    QByteArray textString(const QString& text)
    {
        QStringEncoder encoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
        return byteString(encoder.encode(text));
    }

    QByteArray arrayOf(const PDFBuilder::Box& box)
    {
        QByteArray sides;
        for (const double side : { box.left, box.bottom, box.right, box.top })
            sides += QByteArray::number(side, 'g', 12) + ' ';
        return '[' + sides + ']';
    }

    QByteArray linkEntries(const PDFBuilder::Box& rect)
    {
        return "/Subtype /Link /Border [0 0 0] /Rect " + arrayOf(rect);
    }

} // namespace

PDFBuilder::PDFBuilder(int emptyPages)
    : iObjects(Font)
{
    replaceObject(Font, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    for (int i = 0; i < emptyPages; ++i)
        addPage();
}

int PDFBuilder::addPage(const Page& page)
{
    const int annotations = addObject("[]");
    const int content = addStream({}, page.content);
    QByteArray body = "<< /Type /Page /Parent " + reference(PageTree) + " /MediaBox "
        + arrayOf(page.mediaBox) + " /Contents " + reference(content) + " /Annots "
        + reference(annotations) + " /Resources << /Font << /F1 " + reference(Font) + " >> "
        + page.resources + " >>";
    if (page.cropBox)
        body += " /CropBox " + arrayOf(*page.cropBox);
    if (page.rotation != 0)
        body += " /Rotate " + QByteArray::number(page.rotation);
    if (page.userUnit != 1)
        body += " /UserUnit " + QByteArray::number(page.userUnit);
    iPages.push_back({ addObject(body + ' ' + page.entries + " >>"), annotations });
    return static_cast<int>(iPages.size()) - 1;
}

void PDFBuilder::addURLLink(int page, const Box& rect, const QByteArray& url)
{
    addAnnotation(page, linkEntries(rect) + " /A << /S /URI /URI " + byteString(url) + " >>");
}

void PDFBuilder::addPageLink(int page, const Box& rect, int targetPage)
{
    addAnnotation(page, linkEntries(rect) + ' ' + explicitDestination(targetPage));
}

void PDFBuilder::addAnnotation(int page, const QByteArray& entries)
{
    const int object = addObject("<< /Type /Annot " + entries + " >>");
    const int list = iPages.at(static_cast<size_t>(page)).annotations;
    iObjects.at(static_cast<size_t>(list) - 1).replace("]", reference(object) + " ]");
}

void PDFBuilder::setOutline(const std::vector<OutlineEntry>& entries)
{
    const int root = addObject("<< /Type /Outlines" + outlineLevel(entries) + " >>");
    addCatalogueEntries("/Outlines " + reference(root));
}

QByteArray PDFBuilder::outlineLevel(const std::vector<OutlineEntry>& entries)
{
    QByteArray next;
    for (size_t i = entries.size(); i-- > 0;) {
        const OutlineEntry& entry = entries[i];
        const QByteArray body = "<< /Title " + textString(entry.label) + ' ' + entry.target
            + outlineLevel(entry.children);
        const int object = addObject(body + (next.isEmpty() ? next : " /Next " + next) + " >>");
        next = reference(object);
    }
    return next.isEmpty() ? next : " /First " + next;
}

void PDFBuilder::setTitle(const QString& title)
{
    iTrailerEntries = " /Info " + reference(addObject("<< /Title " + textString(title) + " >>"));
}

void PDFBuilder::setPageLabels(const QByteArray& numbers)
{
    addCatalogueEntries("/PageLabels << /Nums [" + numbers + "] >>");
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
    return iPages.at(static_cast<size_t>(page)).dictionary;
}

QByteArray PDFBuilder::explicitDestination(int page) const
{
    return "/Dest [" + reference(pageObject(page)) + " /Fit]";
}

QByteArray PDFBuilder::build() const
{
    QByteArray kids;
    for (const PageObjects& page : iPages)
        kids += reference(page.dictionary) + ' ';
    std::vector<QByteArray> objects = iObjects;
    objects[Catalogue - 1]
        = "<< /Type /Catalog /Pages " + reference(PageTree) + iCatalogueEntries + " >>";
    objects[PageTree - 1] = "<< /Type /Pages /Count " + QByteArray::number(iPages.size())
        + " /Kids [ " + kids + "] >>";

    QByteArray file = "%PDF-1.7\n";
    QByteArray xref = "0000000000 65535 f \n";
    for (size_t i = 0; i < objects.size(); ++i) {
        xref += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(file.size());
    return file + "xref\n0 " + size + '\n' + xref + "trailer\n<< /Size " + size + " /Root "
        + reference(Catalogue) + iTrailerEntries + " >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray PDFBuilder::reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray PDFBuilder::showText(const QByteArray& text, double x, double y, double size)
{
    return "BT /F1 " + QByteArray::number(size) + " Tf " + QByteArray::number(x) + ' '
        + QByteArray::number(y) + " Td " + byteString(text) + " Tj ET\n";
}

} // namespace leafcast
