// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>
#include <vector>

struct _xmlDoc; // NOLINT(bugprone-reserved-identifier): libxml2 names it so
struct _xmlNode; // NOLINT(bugprone-reserved-identifier)

namespace leafcast {

/// One element of an XML tree. A handle: copies name the same element, and each keeps the whole
/// tree alive. Attributes keep the order in which they were added. Characters that XML 1.0 can't
/// hold are left out of the texts that are set. One thread at a time for one tree.
class XMLElement {
public:
    /// A new tree with this element as its root.
    explicit XMLElement(const QString& name);

    QString name() const;
    /// Where the element starts in the text that it was parsed from, from 1; 0 for one made by
    /// hand.
    int line() const;

    /// The text of the element and everything below it.
    QString stringValue() const;
    void setStringValue(const QString& text);

    /// None when there is no such attribute; an empty one is the empty string.
    std::optional<QString> attribute(const QString& name) const;
    void addAttribute(const QString& name, const QString& value);

    /// Appends a new child element, which shares this tree.
    XMLElement addChild(const QString& name);

    std::optional<XMLElement> firstChild(const QString& name) const;
    /// The direct child elements of that name, in document order.
    std::vector<XMLElement> children(const QString& name) const;
    /// The elements that an XPath 1.0 expression selects from here, in document order.
    std::vector<XMLElement> selectNodes(const QString& xpath) const;

    /// The element as UTF-8 text, without declaration, indentation or added white space.
    QByteArray toUtf8() const;

private:
    friend class XMLParser;
    XMLElement(std::shared_ptr<_xmlDoc> document, _xmlNode* node);

    std::shared_ptr<_xmlDoc> iDocument;
    _xmlNode* iNode;
};

} // namespace leafcast
