// SPDX-License-Identifier: MIT
#include "base/ResourceFolder.h"

#include "base/FolderWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast::ResourceFolder {

namespace {

    QString programFolder()
    {
        static const QString folder = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).path();
        return folder;
    }

    QString besideProgram(const QString& relativePath)
    {
        return QDir::cleanPath(programFolder() + u'/' + relativePath);
    }

    bool isProgram(const QString& path)
    {
        const QFileInfo info(path);
        return info.isFile() && info.isExecutable();
    }

} // namespace

QString path()
{
    const QString chosen = qEnvironmentVariable("LEAFCAST_RESOURCES");
    return chosen.isEmpty() ? besideProgram(u"../share/leafcast"_s) : QDir(chosen).absolutePath();
}

QString pathForResource(const QString& name, const QString& type, const QString& folder)
{
    const QString fileName = type.isEmpty() ? name : name + u'.' + type;
    const QString candidate = QDir::cleanPath(path() + u'/' + folder + u'/' + fileName);
    return QFileInfo::exists(candidate) ? candidate : QString();
}

QStringList pathsForResourcesOfType(const QString& type, const QString& folder)
{
    const QDir directory(path() + u'/' + folder);
    QStringList paths;
    for (const QString& name : FolderWalk::entryNames(directory.path()))
        if (name.endsWith(u'.' + type))
            paths.append(directory.filePath(name));
    return paths;
}

QString helperProgram(const QString& name, const char* variable)
{
    if (const QString chosen = qEnvironmentVariable(variable); !chosen.isEmpty())
        return isProgram(chosen) ? chosen : QString();
    for (const QString& candidate :
        { besideProgram(name), besideProgram(u"../libexec/leafcast/"_s + name) })
        if (isProgram(candidate))
            return candidate;
    return {};
}

} // namespace leafcast::ResourceFolder
