// SPDX-License-Identifier: MIT
#include "publish/BookName.h"

#include "base/Sentences.h"

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
        return Sentences::tr("it is empty");
    if (name.contains(u'/'))
        return Sentences::tr("it must be a name without a folder");
    if (name.startsWith(u'.'))
        return Sentences::tr("it starts with a dot, which would hide it");
    if (std::ranges::any_of(name, isControl))
        return Sentences::tr("it holds a control character");
    return {};
}

} // namespace leafcast
