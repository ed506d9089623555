// SPDX-License-Identifier: MIT
#include "settings/AppSettings.h"

#include "base/IntegerText.h"
#include "base/Log.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint32 startPageWidth = 938;
    constexpr qint32 startPageHeight = 1250;

    qint32 saturated(double number)
    {
        using Limits = std::numeric_limits<qint32>;
        return static_cast<qint32>(
            std::clamp(number, double{ Limits::min() }, double{ Limits::max() }));
    }

    std::optional<qint32> convert(const QJsonValue& value, qint32 /*kind*/)
    {
        switch (value.type()) {
        case QJsonValue::Double:
            return saturated(value.toDouble());
        case QJsonValue::Bool:
            return value.toBool() ? 1 : 0;
        case QJsonValue::String:
            return integerValue(value.toString());
        default:
            return std::nullopt;
        }
    }

    std::optional<QString> convert(const QJsonValue& value, const QString& /*kind*/)
    {
        switch (value.type()) {
        case QJsonValue::Undefined:
            return u""_s;
        case QJsonValue::String:
            return value.toString();
        case QJsonValue::Double:
        case QJsonValue::Bool:
            return value.toVariant().toString();
        default:
            return std::nullopt;
        }
    }

} // namespace

std::span<const AppSettings::Property> AppSettings::properties()
{
    static const std::array table{
        Property{ u"lastImportedFile", &AppSettings::iLastImportedFile },
        Property{ u"importPageRangeType", &AppSettings::iImportPageRangeType },
        Property{ u"importPageRange", &AppSettings::iImportPageRange },
        Property{ u"importQualityLevel", &AppSettings::iImportQualityLevel },
        Property{ u"lastOutputFileFolder", &AppSettings::iLastOutputFileFolder },
        Property{ u"lastOutputFileName", &AppSettings::iLastOutputFileName },
        Property{ u"lastOutputFileTitle", &AppSettings::iLastOutputFileTitle },
        Property{ u"outputType", &AppSettings::iOutputType },
        Property{ u"importBookmark", &AppSettings::iImportBookmark },
        Property{ u"importLinks", &AppSettings::iImportLinks },
        Property{ u"PageWidth", &AppSettings::iPageWidth },
        Property{ u"PageHeight", &AppSettings::iPageHeight },
    };
    return table;
}

AppSettings& AppSettings::shareInstance()
{
    static AppSettings instance(UserDefaults::standard());
    return instance;
}

AppSettings::AppSettings(UserDefaults& defaults)
    : iDefaults(defaults)
{
    loadSettings();
    iPageWidth = startPageWidth;
    iPageHeight = startPageHeight;
}

void AppSettings::autoSave()
{
    for (const Property& property : properties()) {
        const QString key = property.key.toString();
        const QJsonValue value
            = std::visit([this](auto field) { return QJsonValue(this->*field); }, property.field);
        if (iStored.value(key) != value)
            iDefaults.setObject(key, value);
        iStored.insert(key, value);
    }
    iDefaults.synchronize();
}

void AppSettings::autoLoad()
{
    for (const Property& property : properties()) {
        const QJsonValue value = iDefaults.objectForKey(property.key.toString());
        iStored.insert(property.key.toString(), value);
        const auto assign = [&](auto field) {
            const auto converted = convert(value, this->*field);
            if (converted)
                this->*field = *converted;
            else if (!value.isUndefined())
                LOG_WARN(
                    "AppSettings", u"the stored %1 is of no use, left out"_s.arg(property.key));
        };
        std::visit(assign, property.field);
    }
}

} // namespace leafcast
