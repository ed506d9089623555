// SPDX-License-Identifier: MIT
#include "templates/FlashTemplatePropertyType.h"

#include <algorithm>
#include <array>
#include <QString>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    // The place of a name is its code.
    constexpr std::array<QLatin1StringView, 11> typeNames{ "pt_text"_L1, "pt_number"_L1,
        "pt_color"_L1, "pt_list"_L1, "pt_composite"_L1, "pt_file"_L1, "pt_list_fromFunction"_L1,
        "pt_form_security"_L1, "pt_font"_L1, "pt_form_contactabout"_L1, "pt_bool"_L1 };

} // namespace

FlashTemplatePropertyType flashTemplatePropertyTypeFromString(QStringView name)
{
    const auto found = std::find(typeNames.begin(), typeNames.end(), name);
    return found == typeNames.end()
        ? pt_text
        : static_cast<FlashTemplatePropertyType>(found - typeNames.begin());
}

QString flashTemplatePropertyTypeName(FlashTemplatePropertyType type)
{
    return typeNames.at(static_cast<size_t>(type));
}

} // namespace leafcast
