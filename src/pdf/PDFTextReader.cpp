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
        logLoss(u"no text of page %1: %2"_s.arg(QString::number(pageNumber), answer.problem));
    if (answer.fields["cut"_L1].toBool())
        logLoss(u"page %1 has too much text; the end of it is left out"_s.arg(pageNumber));
    return PDFAnswers::textLines(answer.fields);
}

void PDFTextReader::logLoss(const QString& what) const
{
    LOG_WARN("PDFTextReader", u"%1: %2"_s.arg(iPath, what));
}

} // namespace leafcast
