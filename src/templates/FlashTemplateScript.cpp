// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "templates/ScriptEntry.h"

namespace leafcast {

QString FlashTemplate::exportPropertiesSettingsTo1() const
{
    QStringList entries;
    exportPropertiesSettingsToArray1(entries, nullptr);
    return entries.join(QString());
}

void FlashTemplate::exportPropertiesSettingsToArray1(
    QStringList& entries, const FlashTemplateProperty* property) const
{
    if (property)
        entries.append(ScriptEntry(*property).text());
    for (const auto& child : property ? property->childProperties() : iProperties)
        if (child)
            exportPropertiesSettingsToArray1(entries, child.get());
}

} // namespace leafcast
