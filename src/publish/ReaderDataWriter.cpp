// SPDX-License-Identifier: MIT
#include "publish/ReaderDataWriter.h"

#include "publish/JSONText.h"

namespace leafcast {

namespace {

    QByteArray linkText(const ReaderLink& link)
    {
        const auto& [x, y, width, height] = link.area;
        QByteArray text = "{\"x\":" + JSONText::fraction(x) + ",\"y\":" + JSONText::fraction(y)
            + ",\"width\":" + JSONText::fraction(width)
            + ",\"height\":" + JSONText::fraction(height);
        if (link.url)
            return text + ",\"url\":" + JSONText::string(*link.url) + '}';
        return text + ",\"page\":" + QByteArray::number(link.page)
            + ",\"place\":" + QByteArray::number(link.place) + '}';
    }

    QByteArray boxText(const PageFraction& box)
    {
        return '[' + JSONText::fraction(box.x) + ',' + JSONText::fraction(box.y) + ','
            + JSONText::fraction(box.width) + ',' + JSONText::fraction(box.height) + ']';
    }

    QByteArray lineText(const PDFTextLine& line)
    {
        return "{\"text\":" + JSONText::string(line.text)
            + ",\"boxes\":" + JSONText::array(line.boxes, boxText) + '}';
    }

    QByteArray pageText(const ReaderPage& page)
    {
        return "{\"number\":" + QByteArray::number(page.number) + ",\"label\":"
            + JSONText::string(page.label) + ",\"image\":" + JSONText::string(page.image)
            + ",\"width\":" + QByteArray::number(page.width)
            + ",\"height\":" + QByteArray::number(page.height)
            + ",\"links\":" + JSONText::array(page.links, linkText)
            + ",\"lines\":" + JSONText::array(page.lines, lineText) + '}';
    }

    QByteArray outlineItemText(const ReaderOutlineItem& item)
    {
        return "{\"title\":" + JSONText::string(item.title) + ",\"page\":"
            + QByteArray::number(item.page) + ",\"place\":" + QByteArray::number(item.place)
            + ",\"items\":" + JSONText::array(item.items, outlineItemText) + '}';
    }

} // namespace

ReaderDataWriter::ReaderDataWriter(QIODevice& device)
    : iDevice(device)
{
    write("var bookData = {\"version\":1,\"pages\":[");
}

void ReaderDataWriter::addPage(const ReaderPage& page)
{
    if (iHasPages)
        write(",");
    iHasPages = true;
    write(pageText(page));
}

void ReaderDataWriter::finish(const std::vector<ReaderOutlineItem>& outline)
{
    write("],\"outline\":" + outlineText(outline) + "};\n");
}

void ReaderDataWriter::write(const QByteArray& bytes)
{
    if (iDevice.write(bytes) != bytes.size())
        iIsWhole = false;
}

QByteArray ReaderDataWriter::outlineText(const std::vector<ReaderOutlineItem>& outline)
{
    return JSONText::array(outline, outlineItemText);
}

} // namespace leafcast
