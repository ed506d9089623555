// SPDX-License-Identifier: MIT
#pragma once

#include "templates/FlashTemplateProperty.h"

#include <utility>

namespace leafcast {

/// Visits every property of a tree, groups included: each before its children, in the order of the
/// book's script.
template <typename Visit>
void forEachProperty(const FlashTemplateProperties& properties, const Visit& visit)
{
    for (const auto& property : properties) {
        if (!property)
            continue;
        visit(std::as_const(*property));
        forEachProperty(property->childProperties(), visit);
    }
}

} // namespace leafcast
