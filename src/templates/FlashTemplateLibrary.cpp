// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "base/FolderWalk.h"
#include "base/ResourceFolder.h"
#include "settings/HXCUtility.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString templatesPath()
    {
        return ResourceFolder::path() + u"/AppFiles/Templates"_s;
    }

    QString stylesPath(const QString& tmplName)
    {
        return ResourceFolder::path() + u"/AppFiles/Styles/"_s + tmplName;
    }

} // namespace

QString FlashTemplate::tmplDataPath()
{
    return ResourceFolder::path() + u"/AppFiles/"_s;
}

QStringList FlashTemplate::tmplNames()
{
    return HXCUtility::subFolderOfFolder(templatesPath());
}

QStringList FlashTemplate::tmplStyleNamesForTmpl(const QString& tmplName)
{
    return HXCUtility::subFolderOfFolder(stylesPath(tmplName));
}

QString FlashTemplate::stylePathFor(const QString& tmplName, const QString& styleName)
{
    return stylesPath(tmplName) + u'/' + styleName;
}

QString FlashTemplate::tmplPathForName(const QString& tmplName)
{
    return templatesPath() + u'/' + tmplName + u'/';
}

QString FlashTemplate::tmplMetaPathForName(const QString& tmplName)
{
    return tmplPathForName(tmplName) + u"flashTemplate.xml"_s;
}

QStringList FlashTemplate::availableTemplates()
{
    QStringList names = FolderWalk::entryNames(templatesPath());
    names.removeIf(
        [](const QString& name) { return !QFileInfo(tmplMetaPathForName(name)).isFile(); });
    return names;
}

QStringList FlashTemplate::availableStyles(const QString& tmplName)
{
    QStringList names = FolderWalk::entryNames(stylesPath(tmplName));
    names.removeIf(
        [&](const QString& name) { return !QFileInfo(stylePathFor(tmplName, name)).isDir(); });
    return names;
}

} // namespace leafcast
