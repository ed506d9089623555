// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyProblem.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/PropertyValueCheck.h"
#include "templates/ScriptHazard.h"

namespace leafcast {

QString propertyProblem(const FlashTemplateProperty& property)
{
    // Left empty, a setting says "none"; only a number has no such meaning.
    if (property.value().isEmpty() && property.propertyType() != pt_number)
        return {};
    const PropertyValueCheck check = checkPropertyValue(property, property.value());
    return check.isAccepted() ? scriptHazardOf(property) : check.problem;
}

} // namespace leafcast
