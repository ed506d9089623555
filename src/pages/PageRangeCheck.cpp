// SPDX-License-Identifier: MIT
#include "pages/PageRangeCheck.h"

#include "pages/PageRange.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace leafcast {

QString PageRangeCheck::problem(const QString& range, int pageCount)
{
    if (PageRange::isAll(range))
        return {};
    if (range.trimmed().isEmpty())
        return tr("Type the pages to import, such as 1-3,7.");
    for (const QString& piece : range.split(u','))
        if (const QString problem = problemOfPiece(piece.trimmed(), pageCount); !problem.isEmpty())
            return problem;
    return {};
}

QString PageRangeCheck::problemOfPiece(const QString& piece, int pageCount)
{
    static const QRegularExpression numberOrRange(u"^(\\d+)(?:\\s*-\\s*(\\d+))?$"_s);
    const auto match = numberOrRange.match(piece);
    if (piece.isEmpty())
        return tr("There is a comma too many.");
    if (!match.hasMatch())
        return tr("“%1” is no page number; write pages as in 1-3,7.").arg(piece);
    // Beyond the greatest number both are 0.
    const int first = match.captured(1).toInt();
    const int last = match.hasCaptured(2) ? match.captured(2).toInt() : first;
    if (first < 1 || last < 1)
        return tr("There is no page “%1”; pages are counted from 1.").arg(piece);
    if (first > last)
        return tr("“%1” runs backwards; write the smaller number first.").arg(piece);
    if (pageCount > 0 && last > pageCount)
        return tr("There is no page %1; the last one is %2.").arg(last).arg(pageCount);
    if (last - first >= PageRange::mostNumbers)
        return tr("“%1” names more pages than a book can have.").arg(piece);
    return {};
}

} // namespace leafcast
