// SPDX-License-Identifier: MIT
#include "manual/ValueKind.h"

#include "pages/ImportQuality.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace leafcast {

ValueKind valueKind(const QString& placeholder)
{
    static const QHash<QString, ValueKind> kinds{
        { u"FILE"_s, ValueKind::File },
        { u"INPUT"_s, ValueKind::File },
        { u"BOOK_FOLDER"_s, ValueKind::Folder },
        { u"LEVEL"_s, ValueKind::Quality },
        { u"TEMPLATE"_s, ValueKind::Template },
        { u"STYLE"_s, ValueKind::Style },
    };
    return kinds.value(placeholder, ValueKind::Anything);
}

QStringList qualityNames()
{
    QStringList names;
    for (const ImportQuality& quality : importQualities)
        names.append(QLatin1String(quality.name));
    return names;
}

} // namespace leafcast
