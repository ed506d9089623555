// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "base/FileSteps.h"
#include "base/Log.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    /// The first match in pre-order; lists may hold empty places.
    std::shared_ptr<FlashTemplateProperty> firstWithKey(
        const FlashTemplateProperties& properties, const QString& key)
    {
        for (const auto& property : properties) {
            if (!property)
                continue;
            if (property->key() == key)
                return property;
            if (auto below = firstWithKey(property->childProperties(), key))
                return below;
        }
        return nullptr;
    }

    void logRecord(const QString& label, const QString& key, const QString& value)
    {
        LOG_DEBUG("FlashTemplate", u"%1[%2=%3]"_s.arg(label, key, value));
    }

} // namespace

std::shared_ptr<FlashTemplateProperty> FlashTemplate::propertyForKey(const QString& key) const
{
    return firstWithKey(iProperties, key);
}

QString FlashTemplate::propertyValueFor(const QString& key, const QString& defaultValue) const
{
    const auto property = propertyForKey(key);
    return property && !property->value().isNull() ? property->value() : defaultValue;
}

QString FlashTemplate::propertyValueFor(
    const FlashTemplateProperty& property, const QString& key) const
{
    const auto found = firstWithKey(property.childProperties(), key);
    return found ? found->value() : QString();
}

bool FlashTemplate::setPropertyValue(const QString& key, const QString& value)
{
    for (const auto& property : iProperties) {
        if (!property)
            continue;
        if (property->key() == key) {
            assignValue(*property, value);
            return true;
        }
        if (setPropertyValueAt(*property, key, value))
            return true;
    }
    return false;
}

bool FlashTemplate::setPropertyValueAt(
    const FlashTemplateProperty& property, const QString& key, const QString& value)
{
    const auto found = firstWithKey(property.childProperties(), key);
    if (!found)
        return false;
    if (found->propertyType() == pt_file)
        logRecord(u"key 3"_s, key, value);
    assignValue(*found, value);
    return true;
}

void FlashTemplate::assignValue(FlashTemplateProperty& property, const QString& value) const
{
    property.setValue(property.propertyType() == pt_file ? valueAsFilePath(value) : value);
}

QString FlashTemplate::valueAsFilePath(const QString& value) const
{
    const QString marker = u"STYLE_RESOURCE:"_s;
    const qsizetype at = value.indexOf(marker);
    if (at < 0)
        return value;
    return stylePathFor(iTmplName, iStyleName) + u'/' + value.sliced(at + marker.size());
}

SettingsImportReport FlashTemplate::importPropertiesSettingsFrom(const QString& path)
{
    const auto file = SettingsFile::read(path);
    if (!file)
        return {};
    const QString pageWidth = propertyValueFor(u"pageWidth"_s, u"960"_s);
    const QString pageHeight = propertyValueFor(u"pageHeight"_s, u"600"_s);

    SettingsImportReport report{ true, file->encoding, static_cast<int>(file->records.size()), {} };
    for (const auto& [key, value] : file->records) {
        if (key == u"innerMainbgImgUrl")
            logRecord(u"key 0"_s, key, value);
        if (!setPropertyValue(key, value))
            report.unknownKeys.append(key);
    }
    setPropertyValue(u"pageWidth"_s, pageWidth);
    setPropertyValue(u"pageHeight"_s, pageHeight);
    return report;
}

bool FlashTemplate::exportPropertiesSettingsTo(const QString& path) const
{
    QStringList records;
    exportPropertiesSettingsToArray(records, nullptr);
    QString text;
    for (const QString& record : records)
        text += u"\n\r"_s + record;
    return FileSteps::writeAtomically(path, text.toUtf8());
}

void FlashTemplate::exportPropertiesSettingsToArray(
    QStringList& records, const FlashTemplateProperty* property) const
{
    if (property)
        records.append(SettingsFile::recordText(property->key(), property->value()));
    for (const auto& child : property ? property->childProperties() : iProperties)
        if (child)
            exportPropertiesSettingsToArray(records, child.get());
}

} // namespace leafcast
