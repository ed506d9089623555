// SPDX-License-Identifier: MIT
#include "base/XMLParser.h"

#include <libxml/parser.h>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    using Context = std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)>;

    QByteArray withBareAmpersandsEscaped(const QByteArray& text)
    {
        static const QRegularExpression bare(
            u"&(?!(amp|lt|gt|quot|apos|#[0-9]+|#x[0-9A-Fa-f]+);)"_s);
        // Latin-1 maps each byte to one character and back, so any ASCII-based encoding survives.
        return QString::fromLatin1(text).replace(bare, u"&amp;"_s).toLatin1();
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
