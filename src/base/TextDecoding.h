// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace leafcast {

enum class TextEncoding { Utf8, Utf16, Utf32, Latin1 };

struct DecodedText {
    QString text;
    TextEncoding encoding = TextEncoding::Utf8;
};

/// Reads text whose encoding is not declared. A byte-order mark selects Unicode and is left out of
/// the text; without one the text is UTF-8, and Latin-1 where the bytes are no valid UTF-8.
DecodedText decodeText(const QByteArray& bytes);

bool isValidUtf8(const QByteArray& bytes);

} // namespace leafcast
