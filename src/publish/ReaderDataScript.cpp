// SPDX-License-Identifier: MIT
#include "publish/ReaderDataScript.h"

#include "publish/JSONText.h"

namespace leafcast::ReaderDataScript {

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

    QByteArray outlineItemText(const ReaderOutlineItem& item)
    {
        return "{\"title\":" + JSONText::string(item.title) + ",\"page\":"
            + QByteArray::number(item.page) + ",\"place\":" + QByteArray::number(item.place)
            + ",\"items\":" + JSONText::array(item.items, outlineItemText) + '}';
    }

} // namespace

QByteArray page(const ReaderPage& page)
{
    return "{\"number\":" + QByteArray::number(page.number) + ",\"label\":"
        + JSONText::string(page.label) + ",\"image\":" + JSONText::string(page.image)
        + ",\"width\":" + QByteArray::number(page.width)
        + ",\"height\":" + QByteArray::number(page.height)
        + ",\"links\":" + JSONText::array(page.links, linkText) + '}';
}

QByteArray text(const std::vector<PDFTextLine>& lines)
{
    return JSONText::array(lines, lineText);
}

QByteArray outline(const std::vector<ReaderOutlineItem>& items)
{
    return JSONText::array(items, outlineItemText);
}

QByteArray bookFile(
    const std::vector<int>& textStarts, const QByteArrayList& pages, const QByteArray& outline)
{
    const auto number = [](int place) { return QByteArray::number(place); };
    return "var bookData = {\"version\":2,\"textStarts\":" + JSONText::array(textStarts, number)
        + ",\"pages\":[" + pages.join(',') + "],\"outline\":" + outline + "};\n";
}

QByteArray textFile(int number, const QByteArrayList& texts)
{
    return "bookText(" + QByteArray::number(number) + ",[" + texts.join(',') + "]);\n";
}

} // namespace leafcast::ReaderDataScript
