// SPDX-License-Identifier: MIT
#include "templates/ScriptHazard.h"

#include "base/Sentences.h"
#include "templates/PropertyWalk.h"
#include "templates/ScriptEntry.h"

#include <array>
#include <cmath>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct Breaker {
        QLatin1StringView characters;
        const char* name;
    };

    constexpr std::array textBreakers{
        Breaker{ "\""_L1, QT_TRANSLATE_NOOP("leafcast::Sentences", "a double quote") },
        Breaker{ "\\"_L1, QT_TRANSLATE_NOOP("leafcast::Sentences", "a backslash") },
        Breaker{ "\n"_L1, QT_TRANSLATE_NOOP("leafcast::Sentences", "a line break") },
        Breaker{ "\r"_L1, QT_TRANSLATE_NOOP("leafcast::Sentences", "a line break") }
    };

    bool isIdentifier(const QString& key)
    {
        static const QRegularExpression identifier(
            u"\\A[\\p{L}\\p{Nl}$_][\\p{L}\\p{Nl}\\p{Mn}\\p{Mc}\\p{Nd}\\p{Pc}$]*\\z"_s);
        return identifier.match(key).hasMatch();
    }

    QString whyNoText(const QString& value)
    {
        for (const auto& [characters, name] : textBreakers)
            if (value.contains(characters))
                return Sentences::tr("its value holds %1").arg(Sentences::tr(name));
        return {};
    }

    QString whyNoNumber(const QString& value)
    {
        if (value.trimmed().isEmpty())
            return Sentences::tr("its value is empty and must be a number");
        return isScriptNumber(value) ? QString()
                                     : Sentences::tr("its value \"%1\" is not a number").arg(value);
    }

} // namespace

QString scriptHazardOf(const FlashTemplateProperty& property)
{
    const ScriptEntry entry(property);
    if (!isIdentifier(entry.key))
        return Sentences::tr("its key is not a name that a script can hold");
    return entry.isQuoted ? whyNoText(entry.value) : whyNoNumber(entry.value);
}

std::vector<ScriptHazard> scriptHazards(const FlashTemplateProperties& properties)
{
    std::vector<ScriptHazard> found;
    forEachProperty(properties, [&found](const FlashTemplateProperty& property) {
        const QString reason = scriptHazardOf(property);
        if (!reason.isEmpty())
            found.push_back({ property.key(), reason });
    });
    return found;
}

bool isScriptNumber(QStringView text)
{
    static const QRegularExpression decimal(
        u"\\A[+-]?(?:(?:0|[1-9][0-9]*)(?:\\.[0-9]*)?|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?\\z"_s);
    static const QRegularExpression hexadecimal(u"\\A[+-]?0[xX][0-9a-fA-F]{1,255}\\z"_s);
    const QString number = text.trimmed().toString();
    if (hexadecimal.match(number).hasMatch())
        return true;
    return decimal.match(number).hasMatch() && std::isfinite(number.toDouble());
}

} // namespace leafcast
