// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyDefaults.h"

#include "templates/ColorCategory.h"
#include "templates/FlashTemplate.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

PropertyDefaults::PropertyDefaults(const FlashTemplate& flashTemplate)
{
    readStyle(flashTemplate);
    for (const QString& key : { u"pageWidth"_s, u"pageHeight"_s })
        if (const auto property = flashTemplate.propertyForKey(key))
            iOwnDefaults[property.get()] = property->value();
}

void PropertyDefaults::readStyle(const FlashTemplate& flashTemplate)
{
    if (flashTemplate.styleName().isEmpty())
        return;
    const QString path
        = FlashTemplate::stylePathFor(flashTemplate.tmplName(), flashTemplate.styleName())
        + u"/tmplSetting.txt"_s;
    const auto file = QFileInfo::exists(path) ? SettingsFile::read(path) : std::nullopt;
    if (!file)
        return;
    for (const auto& [key, value] : file->records)
        if (const auto property = flashTemplate.propertyForKey(key))
            iOwnDefaults[property.get()] = property->propertyType() == pt_file
                ? flashTemplate.valueAsFilePath(value)
                : value;
}

QString PropertyDefaults::valueOf(const FlashTemplateProperty& property) const
{
    const auto found = iOwnDefaults.find(&property);
    return found == iOwnDefaults.end() ? property.defaultValue() : found->second;
}

bool PropertyDefaults::isChanged(const FlashTemplateProperty& property) const
{
    const QString usual = valueOf(property);
    switch (property.propertyType()) {
    case pt_bool:
        return valueAsBool(property.value()) != valueAsBool(usual);
    case pt_color:
        return property.value().compare(usual, Qt::CaseInsensitive) != 0;
    default:
        return property.value() != usual;
    }
}

} // namespace leafcast
