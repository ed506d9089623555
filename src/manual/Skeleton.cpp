// SPDX-License-Identifier: MIT
#include "manual/Skeleton.h"

#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace leafcast {

Skeleton::Skeleton(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(
            u"%1 can't be read: %2"_s.arg(path, file.errorString()).toStdString());
    iText = QString::fromUtf8(file.readAll());
}

Skeleton& Skeleton::fill(const QString& place, const QString& text)
{
    iText.replace(u'@' + place + u'@', text);
    return *this;
}

} // namespace leafcast
