// SPDX-License-Identifier: MIT
#include "base/FolderWalk.h"

#include "base/NaturalOrder.h"

#include <algorithm>
#include <QDir>

namespace leafcast::FolderWalk {

QStringList entryNames(const QString& folder)
{
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QStringList names = QDir(folder).entryList(everything, QDir::Unsorted);
    std::sort(names.begin(), names.end(),
        [](const QString& a, const QString& b) { return naturalLess(a, b); });
    return names;
}

QStringList subfolders(const QString& folder)
{
    QStringList found;
    for (const QString& name : entryNames(folder)) {
        const QString path = QDir(folder).path() + u'/' + name; // a name may begin with ":"
        const QFileInfo info(path);
        if (!info.isDir() || info.isSymLink())
            continue;
        found.append(path);
        found.append(subfolders(path));
    }
    return found;
}

} // namespace leafcast::FolderWalk
