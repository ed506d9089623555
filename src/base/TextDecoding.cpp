// SPDX-License-Identifier: MIT
#include "base/TextDecoding.h"

#include <QStringDecoder>

namespace leafcast {

namespace {

    TextEncoding fromQt(QStringConverter::Encoding encoding)
    {
        switch (encoding) {
        case QStringConverter::Utf16:
        case QStringConverter::Utf16BE:
        case QStringConverter::Utf16LE:
            return TextEncoding::Utf16;
        case QStringConverter::Utf32:
        case QStringConverter::Utf32BE:
        case QStringConverter::Utf32LE:
            return TextEncoding::Utf32;
        case QStringConverter::Latin1:
            return TextEncoding::Latin1;
        default:
            return TextEncoding::Utf8;
        }
    }

} // namespace

DecodedText decodeText(const QByteArray& bytes)
{
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return { QStringDecoder(*marked)(bytes), fromQt(*marked) };
    if (isValidUtf8(bytes))
        return { QString::fromUtf8(bytes), TextEncoding::Utf8 };
    return { QString::fromLatin1(bytes), TextEncoding::Latin1 };
}

bool isValidUtf8(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder(bytes);
    return !decoder.hasError();
}

} // namespace leafcast
