// SPDX-License-Identifier: MIT
#include "publish/BookName.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

QString nameOfInput(const QString& path)
{
    const QFileInfo input(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return input.isDir() ? input.fileName() : input.completeBaseName();
}

QString packageNameOf(const QString& fileName)
{
    const QFileInfo file(fileName);
    return file.suffix().contains(u' ') ? fileName : file.completeBaseName();
}

QString nameProblem(const QString& name)
{
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    if (name.trimmed().isEmpty())
        return u"it is empty"_s;
    if (name.contains(u'/'))
        return u"it must be a name without a folder"_s;
    if (name.startsWith(u'.'))
        return u"it starts with a dot, which would hide it"_s;
    if (std::ranges::any_of(name, isControl))
        return u"it holds a control character"_s;
    return {};
}

} // namespace leafcast
