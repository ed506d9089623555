// SPDX-License-Identifier: MIT
#include "base/XMLElement.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <string>

namespace leafcast {

namespace {

    using XMLText = std::unique_ptr<xmlChar, decltype(xmlFree)>;

    QString fromXML(const xmlChar* text)
    {
        return QString::fromUtf8(reinterpret_cast<const char*>(text));
    }

    const xmlChar* toXML(const QByteArray& utf8)
    {
        return reinterpret_cast<const xmlChar*>(utf8.constData());
    }

    bool isXMLCharacter(char32_t c)
    {
        return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF)
            || (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
    }

    QByteArray allowedUtf8(const QString& text)
    {
        std::u32string characters = text.toStdU32String();
        std::erase_if(characters, [](char32_t c) { return !isXMLCharacter(c); });
        return QString::fromStdU32String(characters).toUtf8();
    }

    std::shared_ptr<xmlDoc> newDocument()
    {
        std::shared_ptr<xmlDoc> document(xmlNewDoc(toXML("1.0")), xmlFreeDoc);
        // Without it characters beyond ASCII are written as references.
        document->encoding = xmlStrdup(toXML("UTF-8"));
        return document;
    }

    bool isElementNamed(const xmlNode* node, const QByteArray& name)
    {
        return node->type == XML_ELEMENT_NODE && xmlStrEqual(node->name, toXML(name));
    }

} // namespace

XMLElement::XMLElement(const QString& name)
    : iDocument(newDocument())
    , iNode(xmlNewDocNode(iDocument.get(), nullptr, toXML(name.toUtf8()), nullptr))
{
    xmlDocSetRootElement(iDocument.get(), iNode);
}

XMLElement::XMLElement(std::shared_ptr<xmlDoc> document, xmlNode* node)
    : iDocument(std::move(document))
    , iNode(node)
{
}

QString XMLElement::name() const
{
    return fromXML(iNode->name);
}

int XMLElement::line() const
{
    return static_cast<int>(xmlGetLineNo(iNode));
}

QString XMLElement::stringValue() const
{
    const XMLText text(xmlNodeGetContent(iNode), xmlFree);
    return fromXML(text.get());
}

void XMLElement::setStringValue(const QString& text)
{
    xmlNodeSetContent(iNode, nullptr);
    xmlNodeAddContent(iNode, toXML(allowedUtf8(text)));
}

std::optional<QString> XMLElement::attribute(const QString& name) const
{
    const XMLText value(xmlGetNoNsProp(iNode, toXML(name.toUtf8())), xmlFree);
    return value ? std::optional(fromXML(value.get())) : std::nullopt;
}

void XMLElement::addAttribute(const QString& name, const QString& value)
{
    xmlSetProp(iNode, toXML(name.toUtf8()), toXML(allowedUtf8(value)));
}

XMLElement XMLElement::addChild(const QString& name)
{
    return { iDocument, xmlNewChild(iNode, nullptr, toXML(name.toUtf8()), nullptr) };
}

std::optional<XMLElement> XMLElement::firstChild(const QString& name) const
{
    const QByteArray wanted = name.toUtf8();
    for (xmlNode* node = iNode->children; node; node = node->next)
        if (isElementNamed(node, wanted))
            return XMLElement(iDocument, node);
    return std::nullopt;
}

std::vector<XMLElement> XMLElement::children(const QString& name) const
{
    const QByteArray wanted = name.toUtf8();
    std::vector<XMLElement> found;
    for (xmlNode* node = iNode->children; node; node = node->next)
        if (isElementNamed(node, wanted))
            found.push_back(XMLElement(iDocument, node));
    return found;
}

std::vector<XMLElement> XMLElement::selectNodes(const QString& xpath) const
{
    const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(
        xmlXPathNewContext(iDocument.get()), xmlXPathFreeContext);
    context->node = iNode;
    const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> result(
        xmlXPathEvalExpression(toXML(xpath.toUtf8()), context.get()), xmlXPathFreeObject);

    std::vector<XMLElement> found;
    const xmlNodeSet* nodes = result ? result->nodesetval : nullptr;
    for (int i = 0; nodes && i < nodes->nodeNr; ++i)
        if (nodes->nodeTab[i]->type == XML_ELEMENT_NODE)
            found.push_back(XMLElement(iDocument, nodes->nodeTab[i]));
    return found;
}

QByteArray XMLElement::toUtf8() const
{
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(
        xmlBufferCreate(), xmlBufferFree);
    constexpr int level = 0;
    constexpr int unformatted = 0;
    xmlNodeDump(buffer.get(), iDocument.get(), iNode, level, unformatted);
    return QByteArray(reinterpret_cast<const char*>(xmlBufferContent(buffer.get())),
        xmlBufferLength(buffer.get()));
}

} // namespace leafcast
