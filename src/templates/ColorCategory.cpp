// SPDX-License-Identifier: MIT
#include "templates/ColorCategory.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr float largestFloatBelow256 = 255.99998474121094F;

    int hexDigit(QChar c)
    {
        if (c >= u'0' && c <= u'9')
            return c.unicode() - u'0';
        const char16_t lower = c.unicode() | 0x20;
        return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
    }

    bool startsWithPrefixedDigit(QStringView text)
    {
        return text.startsWith(u"0x", Qt::CaseInsensitive) && text.size() > 2
            && hexDigit(text[2]) >= 0;
    }

    float component(quint32 number, int shift)
    {
        return static_cast<float>((number >> shift) & 0xFF) / 255.0F;
    }

    QString twoDigits(float fraction)
    {
        const auto value
            = static_cast<int>(std::clamp(fraction, 0.0F, 1.0F) * largestFloatBelow256);
        return u"%1"_s.arg(value, 2, 16, QLatin1Char('0'));
    }

} // namespace

bool valueAsBool(QStringView value)
{
    const QString upper = value.toString().toUpper();
    return upper == u"YES" || upper == u"SHOW" || upper == u"ENABLE" || upper == u"TRUE";
}

quint32 scannedHexNumber(QStringView text)
{
    const auto first
        = std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    QStringView digits = text.sliced(first - text.begin());
    if (startsWithPrefixedDigit(digits))
        digits = digits.sliced(2);

    quint64 number = 0;
    for (const QChar c : digits) {
        if (hexDigit(c) < 0)
            break;
        number = std::min<quint64>(
            number * 16 + static_cast<quint64>(hexDigit(c)), std::numeric_limits<quint32>::max());
    }
    return static_cast<quint32>(number);
}

RGBColor colorFromHexRGB(QStringView text)
{
    const quint32 number = scannedHexNumber(text);
    return { component(number, 16), component(number, 8), component(number, 0), 1.0F };
}

std::optional<QString> colorToHexRGB(const RGBColor& color)
{
    if (std::isnan(color.red) || std::isnan(color.green) || std::isnan(color.blue))
        return std::nullopt;
    return u"0x"_s + twoDigits(color.red) + twoDigits(color.green) + twoDigits(color.blue);
}

} // namespace leafcast
