// SPDX-License-Identifier: MIT
#include "templates/FlashTemplateProperty.h"

#include "base/XMLElement.h"

#include <array>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct MandatoryChild {
        QLatin1StringView name;
        void (FlashTemplateProperty::*set)(const QString&);
    };

    // "defalutValue" is the format's own spelling.
    constexpr std::array mandatoryChildren{
        MandatoryChild{ "key"_L1, &FlashTemplateProperty::setKey },
        MandatoryChild{ "title"_L1, &FlashTemplateProperty::setTitle },
        MandatoryChild{ "desc"_L1, &FlashTemplateProperty::setDesc },
        MandatoryChild{ "value"_L1, &FlashTemplateProperty::setValue },
        MandatoryChild{ "valueSource"_L1, &FlashTemplateProperty::setValueSource },
        MandatoryChild{ "defalutValue"_L1, &FlashTemplateProperty::setDefaultValue },
    };

    QString mandatoryText(const XMLElement& property, QLatin1StringView name)
    {
        if (const auto child = property.firstChild(name))
            return child->stringValue();
        const auto key = property.firstChild(u"key"_s);
        const QString which
            = key ? u"the property \"%1\""_s.arg(key->stringValue()) : u"a property"_s;
        throw MalformedTemplate(property.line(), u"%1 has no \"%2\" element"_s.arg(which, name));
    }

} // namespace

FlashTemplateProperty::~FlashTemplateProperty() = default;

void FlashTemplateProperty::loadFromNode(const XMLElement& element)
{
    if (element.name() != u"property")
        return;
    iParent = nullptr;
    for (const auto& [name, set] : mandatoryChildren)
        (this->*set)(mandatoryText(element, name));

    const auto aTitle = element.firstChild(u"aTitle"_s);
    iATitle = aTitle ? aTitle->stringValue() : u""_s;
    iPropertyType
        = flashTemplatePropertyTypeFromString(element.attribute(u"type"_s).value_or(QString()));
    // Deliberate: any aType makes a switch, whatever the type says.
    if (element.attribute(u"aType"_s))
        iPropertyType = pt_bool;
    loadChildren(element);
}

void FlashTemplateProperty::loadChildren(const XMLElement& element)
{
    iChildProperties.clear();
    const auto list = element.firstChild(u"childProperties"_s);
    if (!list)
        return;
    for (const XMLElement& childElement : list->children(u"property"_s)) {
        auto child = std::make_shared<FlashTemplateProperty>();
        child->loadFromNode(childElement);
        child->setParent(this);
        iChildProperties.push_back(std::move(child));
    }
}

std::shared_ptr<FlashTemplateProperty> FlashTemplateProperty::copy() const
{
    auto made = std::make_shared<FlashTemplateProperty>();
    made->iPropertyType = iPropertyType;
    made->iKey = iKey;
    made->iTitle = iTitle;
    made->iATitle = iATitle;
    made->iDesc = iDesc;
    made->iValue = iValue;
    made->iValueSource = iValueSource;
    made->iDefaultValue = iDefaultValue;
    made->iReadOnly = iReadOnly;
    made->iChildProperties = copyOf(iChildProperties);
    for (const auto& child : made->iChildProperties)
        if (child)
            child->iParent = made.get();
    return made;
}

FlashTemplateProperties copyOf(const FlashTemplateProperties& properties)
{
    FlashTemplateProperties copies;
    copies.reserve(properties.size());
    for (const auto& property : properties)
        copies.push_back(property ? property->copy() : nullptr);
    return copies;
}

void FlashTemplateProperty::setChildProperties(FlashTemplateProperties properties)
{
    iChildProperties = std::move(properties);
}

} // namespace leafcast
