// SPDX-License-Identifier: MIT
#include "publish/JSONText.h"

#include <algorithm>
#include <cmath>

namespace leafcast::JSONText {

namespace {

    bool mustBeEscaped(QChar c)
    {
        constexpr char16_t lineSeparator = 0x2028;
        constexpr char16_t paragraphSeparator = 0x2029;
        return c < u' ' || c == u'"' || c == u'\\' || c == u'<' || c == lineSeparator
            || c == paragraphSeparator;
    }

    QString escaped(QChar c)
    {
        if (c == u'"' || c == u'\\')
            return QStringLiteral("\\") + c;
        return QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }

} // namespace

QByteArray string(const QString& text)
{
    QString result = QStringLiteral("\"");
    for (const QChar c : text) {
        if (mustBeEscaped(c))
            result += escaped(c);
        else
            result += c;
    }
    return (result += u'"').toUtf8();
}

QByteArray fraction(double value)
{
    constexpr int scale = 10000;
    const double inside = std::isnan(value) ? 0 : std::clamp(value, 0.0, 1.0);
    const auto parts = static_cast<int>(std::lround(inside * scale));
    if (parts % scale == 0)
        return parts == 0 ? "0" : "1";
    // The leading 1 keeps the zeros behind the point.
    QByteArray digits = QByteArray::number(scale + parts).sliced(1);
    while (digits.endsWith('0'))
        digits.chop(1);
    return "0." + digits;
}

} // namespace leafcast::JSONText
