// SPDX-License-Identifier: MIT
#include "base/IntegerText.h"

#include <algorithm>
#include <limits>

namespace leafcast {

namespace {

    bool isDecimalDigit(QChar c)
    {
        return c >= u'0' && c <= u'9';
    }

} // namespace

qint32 integerValue(QStringView text)
{
    constexpr qint64 lowest = std::numeric_limits<qint32>::min();
    constexpr qint64 highest = std::numeric_limits<qint32>::max();

    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    const bool negative = i < text.size() && text[i] == u'-';
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        ++i;

    qint64 magnitude = 0;
    for (; i < text.size() && isDecimalDigit(text[i]); ++i)
        magnitude = std::min(magnitude * 10 + (text[i].unicode() - u'0'), highest + 1);
    return static_cast<qint32>(std::clamp(negative ? -magnitude : magnitude, lowest, highest));
}

} // namespace leafcast
