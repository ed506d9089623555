// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/NumberStyle.h"

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    constexpr qint64 LargestRoman = 20'000;
    constexpr qint64 LargestLetters = 26 * 100;

    QString roman(qint64 number)
    {
        static const struct {
            int value;
            QStringView digits;
        } steps[] = { { 1000, u"m" }, { 900, u"cm" }, { 500, u"d" }, { 400, u"cd" }, { 100, u"c" },
            { 90, u"xc" }, { 50, u"l" }, { 40, u"xl" }, { 10, u"x" }, { 9, u"ix" }, { 5, u"v" },
            { 4, u"iv" }, { 1, u"i" } };
        QString text;
        for (const auto& step : steps) {
            for (; number >= step.value; number -= step.value)
                text += step.digits;
        }
        return text;
    }

    QString letters(qint64 number)
    {
        const auto letter = QChar(static_cast<char16_t>(u'a' + (number - 1) % 26));
        return QString((number - 1) / 26 + 1, letter);
    }

} // namespace

QString numberInStyle(qint64 number, char style)
{
    const bool isRoman = style == 'R' || style == 'r';
    const bool isLetters = style == 'A' || style == 'a';
    if (!isRoman && !isLetters && style != 'D')
        return {};
    if (style == 'D' || number < 1 || number > (isRoman ? LargestRoman : LargestLetters))
        return QString::number(number);
    const QString text = isRoman ? roman(number) : letters(number);
    return style == 'R' || style == 'A' ? text.toUpper() : text;
}

} // namespace leafcast::service
