// SPDX-License-Identifier: MIT
#pragma once

#include "base/NamedException.h"
#include "templates/FlashTemplatePropertyType.h"

#include <memory>
#include <QString>
#include <vector>

namespace leafcast {

class XMLElement;
class FlashTemplateProperty;

using FlashTemplateProperties = std::vector<std::shared_ptr<FlashTemplateProperty>>;

/// Copies each property, empty slots included.
FlashTemplateProperties copyOf(const FlashTemplateProperties& properties);

/// A template's description that is XML but lacks what it must have.
class MalformedTemplate : public NamedException {
public:
    /// line: in the description file, from 1; 0 when unknown.
    MalformedTemplate(int line, const QString& reason)
        : NamedException(QStringLiteral("ERROR_MALFORMED_TEMPLATE"), reason)
        , iLine(line)
    {
    }
    int line() const { return iLine; }

private:
    int iLine;
};

/// One editable setting of a template, or a group of them: a node of the template's property tree.
/// Owns its children. Every value is text; a null string is an absent one.
class FlashTemplateProperty {
public:
    FlashTemplateProperty() = default;
    FlashTemplateProperty(const FlashTemplateProperty&) = delete;
    FlashTemplateProperty& operator=(const FlashTemplateProperty&) = delete;
    ~FlashTemplateProperty();

    /// Fills the node and everything below it from a "property" element; an element of another name
    /// changes nothing. Throws MalformedTemplate when a mandatory child element is missing.
    void loadFromNode(const XMLElement& element);

    /// The node and everything below it, anew; without a parent.
    std::shared_ptr<FlashTemplateProperty> copy() const;

    FlashTemplateProperty* parent() const { return iParent; }
    void setParent(FlashTemplateProperty* parent) { iParent = parent; }
    FlashTemplatePropertyType propertyType() const { return iPropertyType; }
    void setPropertyType(FlashTemplatePropertyType type) { iPropertyType = type; }

    const QString& key() const { return iKey; }
    void setKey(const QString& key) { iKey = key; }
    const QString& title() const { return iTitle; }
    void setTitle(const QString& title) { iTitle = title; }
    const QString& aTitle() const { return iATitle; } // caption of a switch's check box
    void setATitle(const QString& aTitle) { iATitle = aTitle; }
    const QString& desc() const { return iDesc; }
    void setDesc(const QString& desc) { iDesc = desc; }
    const QString& value() const { return iValue; }
    void setValue(const QString& value) { iValue = value; }
    const QString& valueSource() const { return iValueSource; } // choices, or a file filter
    void setValueSource(const QString& valueSource) { iValueSource = valueSource; }
    const QString& defaultValue() const { return iDefaultValue; }
    void setDefaultValue(const QString& defaultValue) { iDefaultValue = defaultValue; }

    const FlashTemplateProperties& childProperties() const { return iChildProperties; }
    /// The children's parent is not touched.
    void setChildProperties(FlashTemplateProperties properties);
    int childCount() const { return static_cast<int>(iChildProperties.size()); }

    bool readOnly() const { return iReadOnly; } // never consulted
    void setReadOnly(bool readOnly) { iReadOnly = readOnly; }

private:
    void loadChildren(const XMLElement& element);

    FlashTemplateProperty* iParent = nullptr;
    FlashTemplatePropertyType iPropertyType = pt_text;
    QString iKey;
    QString iTitle = QStringLiteral("Empty");
    QString iATitle;
    QString iDesc;
    QString iValue;
    QString iValueSource;
    QString iDefaultValue;
    FlashTemplateProperties iChildProperties;
    bool iReadOnly = false;
};

} // namespace leafcast
