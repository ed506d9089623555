// SPDX-License-Identifier: MIT
#include "templates/PropertyValueCheck.h"

#include "base/Sentences.h"
#include "templates/FlashTemplateProperty.h"
#include "templates/ScriptHazard.h"

#include <algorithm>
#include <array>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    PropertyValueCheck accepted(const QString& value)
    {
        return { value, {} };
    }

    PropertyValueCheck refused(const QString& problem)
    {
        return { {}, problem };
    }

    PropertyValueCheck checkNumber(const FlashTemplateProperty&, const QString& typed)
    {
        return isScriptNumber(typed) ? accepted(typed.trimmed())
                                     : refused(Sentences::tr("it must be a number"));
    }

    QString doubled(const QString& digits)
    {
        QString text;
        for (const QChar digit : digits)
            text += QString(2, digit);
        return text;
    }

    PropertyValueCheck checkColor(const FlashTemplateProperty&, const QString& typed)
    {
        static const QRegularExpression color(u"\\A(?:(?:#|0x)([0-9a-f]{6})|#([0-9a-f]{3}))\\z"_s);
        const auto match = color.match(typed.trimmed().toLower());
        if (!match.hasMatch())
            return refused(Sentences::tr("it must be a colour such as #1a2b3c"));
        return accepted(u"0x"_s + match.captured(1) + doubled(match.captured(2)));
    }

    PropertyValueCheck checkChoice(const FlashTemplateProperty& property, const QString& typed)
    {
        if (property.valueSource().trimmed().isEmpty())
            return accepted(typed); // a list without choices has no rule
        QStringList shown;
        for (const QString& choice : property.valueSource().split(u',')) {
            // Blanks of the source are stored, as by the editor, which looks for the exact entry.
            if (choice.trimmed() == typed.trimmed())
                return accepted(choice);
            shown.append(choice.trimmed());
        }
        return refused(Sentences::tr("it must be one of %1").arg(shown.join(u", "_s)));
    }

    PropertyValueCheck checkFile(const FlashTemplateProperty&, const QString& typed)
    {
        if (typed.isEmpty() || typed.contains(u"STYLE_RESOURCE:"_s))
            return accepted(typed);
        const QFileInfo file(typed);
        if (!file.exists())
            return refused(Sentences::tr("there is no such file"));
        return file.isFile()
            ? accepted(file.absoluteFilePath())
            : refused(Sentences::tr("it must be a file, not a folder or a device"));
    }

    PropertyValueCheck checkSwitch(const FlashTemplateProperty&, const QString& typed)
    {
        const QStringList on{ u"yes"_s, u"true"_s, u"show"_s, u"enable"_s, u"on"_s, u"1"_s };
        const QStringList off{ u"no"_s, u"false"_s, u"hide"_s, u"disable"_s, u"off"_s, u"0"_s };
        if (on.contains(typed.trimmed(), Qt::CaseInsensitive))
            return accepted(u"YES"_s);
        return off.contains(typed.trimmed(), Qt::CaseInsensitive)
            ? accepted(u"NO"_s)
            : refused(Sentences::tr("it must be yes or no"));
    }

    struct TypeCheck {
        FlashTemplatePropertyType type;
        PropertyValueCheck (*check)(const FlashTemplateProperty&, const QString&);
    };

    constexpr std::array typeChecks{ TypeCheck{ pt_number, checkNumber },
        TypeCheck{ pt_color, checkColor }, TypeCheck{ pt_list, checkChoice },
        TypeCheck{ pt_file, checkFile }, TypeCheck{ pt_bool, checkSwitch } };

} // namespace

PropertyValueCheck checkPropertyValue(const FlashTemplateProperty& property, const QString& typed)
{
    const auto found = std::ranges::find(typeChecks, property.propertyType(), &TypeCheck::type);
    return found == typeChecks.end() ? accepted(typed) : found->check(property, typed);
}

} // namespace leafcast
