// SPDX-License-Identifier: MIT
#pragma once

#include "templates/FlashTemplateProperty.h"

#include <QStringView>

namespace leafcast {

/// A property that would break a book's script or change what it says, because the script holds
/// keys and values as they are.
struct ScriptHazard {
    QString key;
    QString reason; // a clause for people, such as "its value holds a double quote"
};

/// The hazards of a whole tree, groups included, in the order of the script; at most one for a
/// property.
std::vector<ScriptHazard> scriptHazards(const FlashTemplateProperties& properties);

/// The hazard of one property alone; empty for none.
QString scriptHazardOf(const FlashTemplateProperty& property);

/// Whether a script reads the text as one finite number: decimal without needless leading zeros
/// (those would be octal), or hexadecimal behind "0x".
bool isScriptNumber(QStringView text);

} // namespace leafcast
