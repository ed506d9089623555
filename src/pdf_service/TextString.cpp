// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/TextString.h"

#include <mupdf/fitz.h>
#include <QStringDecoder>

namespace leafcast::service {

namespace {

    QString fromPDFDocEncoding(QByteArrayView bytes)
    {
        QString text;
        text.reserve(bytes.size());
        for (const char byte : bytes)
            text += QChar(fz_unicode_from_pdf_doc_encoding[static_cast<unsigned char>(byte)]);
        return text;
    }

    QString decoded(QByteArrayView bytes)
    {
        if (bytes.startsWith("\xFE\xFF"))
            return QStringDecoder(QStringDecoder::Utf16BE)(bytes.sliced(2));
        if (bytes.startsWith("\xFF\xFE"))
            return QStringDecoder(QStringDecoder::Utf16LE)(bytes.sliced(2));
        if (bytes.startsWith("\xEF\xBB\xBF"))
            return QString::fromUtf8(bytes.sliced(3));
        return fromPDFDocEncoding(bytes);
    }

    // An escape character, a language and country code, another escape character.
    void dropLanguageEscapes(QString& text)
    {
        constexpr QChar escape(0x1B);
        for (qsizetype start = text.indexOf(escape); start >= 0; start = text.indexOf(escape)) {
            const qsizetype end = text.indexOf(escape, start + 1);
            text.remove(start, end > start && end - start <= 6 ? end - start + 1 : 1);
        }
    }

} // namespace

QString textFromPDFString(const char* bytes, size_t length)
{
    QString text = decoded(QByteArrayView(bytes, static_cast<qsizetype>(length)));
    dropLanguageEscapes(text);
    for (QChar& character : text) {
        if (character < u' ' || character == QChar(0x7F))
            character = u' ';
    }
    return text;
}

} // namespace leafcast::service
