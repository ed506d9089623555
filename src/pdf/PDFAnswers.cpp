// SPDX-License-Identifier: MIT
#include "pdf/PDFAnswers.h"

#include <algorithm>
#include <array>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace leafcast::PDFAnswers {

namespace {

    constexpr int deepestLevel = 100;

    std::array<double, 4> rectangle(const QJsonValue& value)
    {
        const QJsonArray numbers = value.toArray();
        std::array<double, 4> rectangle{};
        for (qsizetype i = 0; i < 4 && i < numbers.size(); ++i)
            rectangle.at(static_cast<size_t>(i)) = numbers.at(i).toDouble();
        return rectangle;
    }

    PDFRect pageSpaceRect(const QJsonValue& value)
    {
        const auto [x, y, width, height] = rectangle(value);
        return { x, y, width, height };
    }

    PageFraction pageFraction(const QJsonValue& value)
    {
        const auto [x, y, width, height] = rectangle(value);
        return { x, y, width, height };
    }

    std::optional<PDFPage> page(const QJsonValue& value, int index)
    {
        if (!value.isObject())
            return std::nullopt;
        const PDFPage::Boxes boxes{ .mediaBox = pageSpaceRect(value["mediaBox"_L1]),
            .cropBox = pageSpaceRect(value["cropBox"_L1]) };
        return PDFPage(index, boxes, value["rotation"_L1].toInt(), value["userUnit"_L1].toDouble(1),
            value["label"_L1].toString());
    }

    PDFAnnotation annotation(const QJsonValue& value)
    {
        PDFAnnotation annotation;
        annotation.type = value["type"_L1].toString();
        annotation.bounds = pageSpaceRect(value["bounds"_L1]);
        if (const QJsonValue url = value["url"_L1]; url.isString())
            annotation.URL = url.toString();
        if (const QJsonValue target = value["page"_L1]; target.isDouble())
            annotation.destination = PDFDestination{ .pageIndex = target.toInt(-1) };
        return annotation;
    }

    PDFTextLine textLine(const QJsonValue& value)
    {
        PDFTextLine line{ .text = value["text"_L1].toString(), .boxes = {} };
        for (const QJsonValue box : value["boxes"_L1].toArray())
            line.boxes.push_back(pageFraction(box));
        return line;
    }

} // namespace

std::vector<std::optional<PDFPage>> pages(const QJsonObject& answer, int firstIndex)
{
    std::vector<std::optional<PDFPage>> pages;
    for (const QJsonValue value : answer["pages"_L1].toArray())
        pages.push_back(page(value, firstIndex + static_cast<int>(pages.size())));
    return pages;
}

std::vector<PDFAnnotation> annotations(const QJsonObject& answer)
{
    std::vector<PDFAnnotation> annotations;
    for (const QJsonValue value : answer["annotations"_L1].toArray())
        annotations.push_back(annotation(value));
    return annotations;
}

std::vector<PDFTextLine> textLines(const QJsonObject& answer)
{
    std::vector<PDFTextLine> lines;
    for (const QJsonValue value : answer["lines"_L1].toArray())
        lines.push_back(textLine(value));
    return lines;
}

std::optional<PDFOutline> outlineRoot(const QJsonObject& answer)
{
    const QJsonArray entries = answer["entries"_L1].toArray();
    if (entries.isEmpty())
        return std::nullopt;
    PDFOutline root;
    // From the root to the entry added last: an entry is appended below one of these only, so none
    // of the pointers is left dangling by a list that grows.
    std::vector<PDFOutline*> path{ &root };
    for (const QJsonValue entry : entries) {
        const int level = std::clamp(entry["level"_L1].toInt(1), 1, deepestLevel);
        path.resize(std::min(path.size(), static_cast<size_t>(level)));
        std::vector<PDFOutline>& siblings = path.back()->children;
        siblings.push_back({ .label = entry["label"_L1].toString(),
            .destination = { .pageIndex = entry["page"_L1].toInt(-1) },
            .children = {} });
        path.push_back(&siblings.back());
    }
    return root;
}

} // namespace leafcast::PDFAnswers
