// SPDX-License-Identifier: MIT
#include "base/XMLParser.h"

#include <libxml/parser.h>
#include <QRegularExpression>
#include <QStringConverter>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    using Context = std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)>;

    /// UTF-16 or UTF-32 where the text starts so. Else Latin-1, which maps each byte to one
    /// character and back, so that any ASCII-based encoding survives.
    QStringConverter::Encoding encodingToTidyIn(const QByteArray& text)
    {
        const auto found = QStringConverter::encodingForData(text, u'<');
        return found && found != QStringConverter::Utf8 ? *found : QStringConverter::Latin1;
    }

    QByteArray withBareAmpersandsEscaped(const QByteArray& text)
    {
        // What is CDATA, a comment or a processing instruction is skipped: no escapes are read
        // there.
        static const QRegularExpression bare(
            u"(?:<!\\[CDATA\\[.*?\\]\\]>|<!--.*?-->|<\\?.*?\\?>)(*SKIP)(*FAIL)"
            "|&(?!(?:amp|lt|gt|quot|apos|#[0-9]+|#x[0-9A-Fa-f]+);)"_s,
            QRegularExpression::DotMatchesEverythingOption);
        const auto encoding = encodingToTidyIn(text);
        const QString escaped = QString(QStringDecoder(encoding)(text)).replace(bare, u"&amp;"_s);
        return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(escaped);
    }

    XMLParser::Error lastError(const Context& context)
    {
        const xmlError& error = context->lastError;
        if (!error.message)
            return { u"it is not XML"_s, 0 };
        return { QString::fromUtf8(error.message).trimmed(), error.line };
    }

    // The tree writes itself in UTF-8, whatever it was read from.
    void forgetEncodingOfInput(xmlDoc* document)
    {
        xmlFree(const_cast<xmlChar*>(document->encoding));
        document->encoding = xmlStrdup(reinterpret_cast<const xmlChar*>("UTF-8"));
    }

    bool declaresEntities(const xmlDoc* document)
    {
        return document->intSubset && document->intSubset->entities;
    }

} // namespace

std::optional<XMLElement> XMLParser::parse(const QByteArray& text, Mode mode)
{
    const bool tidying = mode == Mode::Tidying;
    const QByteArray input = tidying ? withBareAmpersandsEscaped(text) : text;
    const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING
        | (tidying ? XML_PARSE_RECOVER : 0);

    const Context context(xmlNewParserCtxt(), xmlFreeParserCtxt);
    std::shared_ptr<xmlDoc> document(xmlCtxtReadMemory(context.get(), input.constData(),
                                         static_cast<int>(input.size()), nullptr, nullptr, options),
        xmlFreeDoc);
    xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (!root) {
        iError = lastError(context);
        return std::nullopt;
    }
    if (declaresEntities(document.get())) {
        iError = { u"it declares entities of its own"_s, 0 };
        return std::nullopt;
    }
    forgetEncodingOfInput(document.get());
    return XMLElement(std::move(document), root);
}

} // namespace leafcast
