// SPDX-License-Identifier: MIT
#include "base/NaturalOrder.h"

namespace leafcast {

namespace {

    qsizetype digitRunLength(QStringView text)
    {
        qsizetype length = 0;
        while (length < text.size() && text[length] >= u'0' && text[length] <= u'9')
            ++length;
        return length;
    }

    QStringView withoutLeadingZeros(QStringView digits)
    {
        while (digits.size() > 1 && digits.front() == u'0')
            digits = digits.mid(1);
        return digits;
    }

    int compareNumbers(QStringView a, QStringView b)
    {
        a = withoutLeadingZeros(a);
        b = withoutLeadingZeros(b);
        if (a.size() != b.size())
            return a.size() < b.size() ? -1 : 1;
        return a.compare(b);
    }

    int compareNaturally(QStringView a, QStringView b)
    {
        while (!a.isEmpty() && !b.isEmpty()) {
            const qsizetype digitsA = digitRunLength(a);
            const qsizetype digitsB = digitRunLength(b);
            const bool numbers = digitsA > 0 && digitsB > 0;
            const int order = numbers ? compareNumbers(a.left(digitsA), b.left(digitsB))
                                      : int(a.front().unicode()) - int(b.front().unicode());
            if (order != 0)
                return order;
            a = a.mid(numbers ? digitsA : 1);
            b = b.mid(numbers ? digitsB : 1);
        }
        return int(!a.isEmpty()) - int(!b.isEmpty());
    }

} // namespace

bool naturalLess(QStringView a, QStringView b)
{
    const int order = compareNaturally(a, b);
    return order != 0 ? order < 0 : a.compare(b) < 0;
}

} // namespace leafcast
