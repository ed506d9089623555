// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// Pieces of JSON that may stand in a script: "<" and the two Unicode line separators are escaped
/// too.
namespace leafcast::JSONText {

/// With its quotes, UTF-8.
QByteArray string(const QString& text);

/// 0 to 1 with at most four decimals; what lies outside becomes the nearer end.
QByteArray fraction(double value);

/// "[a,b]" of texts made by item(element).
template <typename Elements, typename Item>
QByteArray array(const Elements& elements, const Item& item)
{
    QByteArray text = "[";
    for (const auto& element : elements) {
        if (text.size() > 1)
            text += ',';
        text += item(element);
    }
    return text += ']';
}

} // namespace leafcast::JSONText
