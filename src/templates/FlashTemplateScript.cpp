// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString withScheme(const QString& address)
    {
        const bool isComplete
            = address.isEmpty() || address.startsWith(u"http"_s, Qt::CaseInsensitive);
        return isComplete ? address : u"http://"_s + address;
    }

    QString bookFilePath(const FlashTemplateProperty& property, const QString& value)
    {
        return u"files/extfile/"_s + property.key() + u'.' + QFileInfo(value).suffix();
    }

    QString quotedValue(const FlashTemplateProperty& property)
    {
        QString value = property.value();
        if (property.key() == u"appLogoLinkURL")
            value = withScheme(value);
        if (property.key() == u"OpenWindow")
            value = (u'_' + value).toLower();
        if (property.propertyType() == pt_color)
            value.replace(u"0x"_s, u"#"_s);
        if (property.propertyType() == pt_file && !value.isEmpty())
            value = bookFilePath(property, value);
        return u'"' + value + u'"';
    }

    /// Deliberately without any escaping: keys and values stand in the script as they are.
    QString scriptEntry(const FlashTemplateProperty& property)
    {
        const bool isNumber = property.propertyType() == pt_number;
        QString value = isNumber ? property.value() : quotedValue(property);
        return SettingsFile::writtenKey(property.key()) + u':' + value.remove(u"\n\r"_s) + u',';
    }

} // namespace

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
        entries.append(scriptEntry(*property));
    for (const auto& child : property ? property->childProperties() : iProperties)
        if (child)
            exportPropertiesSettingsToArray1(entries, child.get());
}

} // namespace leafcast
