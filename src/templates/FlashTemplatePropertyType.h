// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// What a property's text value means: how it is edited and how the book's script writes it. The
/// names are those of the template file's "type" attribute, the codes are fixed.
enum FlashTemplatePropertyType : qint32 {
    pt_text = 0,
    pt_number = 1, // the only type that scripts hold without quotes
    pt_color = 2, // "0x" and six hexadecimal digits
    pt_list = 3, // one choice of the value source, which is comma-separated
    pt_composite = 4, // a group
    pt_file = 5, // a path; the value source is a filter such as "Images|*.jpg;*.png"
    pt_list_fromFunction = 6,
    pt_form_security = 7,
    pt_font = 8,
    pt_form_contactabout = 9,
    pt_bool = 10 // any text, read with valueAsBool
};

/// The type of that exact name; pt_text for any other text.
FlashTemplatePropertyType flashTemplatePropertyTypeFromString(QStringView name);

/// The name that the template file uses.
QString flashTemplatePropertyTypeName(FlashTemplatePropertyType type);

} // namespace leafcast
