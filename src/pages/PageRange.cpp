// SPDX-License-Identifier: MIT
#include "pages/PageRange.h"

#include "base/IntegerText.h"
#include "base/NamedException.h"
#include "base/Sentences.h"

#include <algorithm>
#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace leafcast::PageRange {

namespace {

    void appendNumbers(std::vector<qint32>& numbers, qint32 first, qint32 last)
    {
        if (first > last)
            return;
        const qint64 count = qint64{ last } - first + 1;
        const auto former = static_cast<qint64>(numbers.size());
        if (former + count > mostNumbers)
            throw NamedException(u"ERROR_PAGE_RANGE_TOO_LONG"_s,
                Sentences::tr("the page range names more than %1 pages").arg(mostNumbers));
        for (qint64 number = first; number <= last; ++number) // 64 bits: last may be the greatest
            numbers.push_back(static_cast<qint32>(number));
    }

    /// Parts after the second are ignored: "1-3-9" is 1 to 3.
    void appendPiece(std::vector<qint32>& numbers, QStringView piece)
    {
        const qsizetype dash = piece.indexOf(u'-');
        if (dash < 0)
            return appendNumbers(numbers, integerValue(piece), integerValue(piece));
        const QStringView rest = piece.sliced(dash + 1);
        const qsizetype secondDash = rest.indexOf(u'-');
        const QStringView last = secondDash < 0 ? rest : rest.first(secondDash);
        appendNumbers(numbers, integerValue(piece.first(dash)), integerValue(last));
    }

} // namespace

bool isAll(const QString& range)
{
    return range.toUpper() == u"ALL"_s;
}

std::vector<qint32> parse(const QString& range, qint32 totalPage)
{
    std::vector<qint32> numbers;
    if (isAll(range)) {
        appendNumbers(numbers, 1, totalPage);
        return numbers;
    }
    for (const QStringView piece : QStringTokenizer(range, u','))
        appendPiece(numbers, piece);
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace leafcast::PageRange
