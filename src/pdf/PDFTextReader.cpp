// SPDX-License-Identifier: MIT
#include "pdf/PDFTextReader.h"

#include "base/Log.h"
#include "pdf/PDFAnswers.h"
#include "pdf/PDFServicePool.h"

using namespace Qt::StringLiterals;

namespace leafcast {

PDFTextReader::PDFTextReader(
    const PDFDocument::Source& source, std::vector<int> pageIndices, int workers)
    : iPath(source.path)
    , iPageIndices(std::move(pageIndices))
{
    const auto requestAt = [this](size_t position) {
        return QJsonObject{ { u"op"_s, u"text"_s }, { u"page"_s, iPageIndices.at(position) } };
    };
    iPool = std::make_unique<PDFServicePool>(source, iPageIndices.size(), requestAt, workers);
}

PDFTextReader::~PDFTextReader() = default;

std::vector<PDFTextLine> PDFTextReader::next()
{
    if (atEnd())
        return {};
    const int pageNumber = iPageIndices.at(iNext++) + 1;
    const PDFServiceAnswer answer = iPool->next();
    if (!answer.isAnswered())
        LOG_WARN("PDFTextReader",
            u"%1: no text of page %2: %3"_s.arg(
                iPath, QString::number(pageNumber), answer.problem));
    return PDFAnswers::textLines(answer.fields);
}

} // namespace leafcast
