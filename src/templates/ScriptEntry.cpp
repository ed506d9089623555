// SPDX-License-Identifier: MIT
#include "templates/ScriptEntry.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/SettingsFile.h"

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

    QString textValue(const FlashTemplateProperty& property)
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
        return value;
    }

} // namespace

ScriptEntry::ScriptEntry(const FlashTemplateProperty& property)
    : key(SettingsFile::writtenKey(property.key()))
    , value(property.propertyType() == pt_number ? property.value() : textValue(property))
    , isQuoted(property.propertyType() != pt_number)
{
    value.remove(u"\n\r"_s);
}

QString ScriptEntry::text() const
{
    const QString written = isQuoted ? u'"' + value + u'"' : value;
    return key + u':' + written + u',';
}

} // namespace leafcast
