// SPDX-License-Identifier: MIT
#include "templates/FlashTemplate.h"

#include "base/FileSteps.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    bool copyFileOver(const QString& source, const QString& destination)
    {
        FileSteps::remove(destination);
        return FileSteps::copyFile(source, destination);
    }

    bool copyFolderOver(const QString& source, const QString& destination)
    {
        FileSteps::remove(destination);
        return FileSteps::copyFolder(source, destination);
    }

} // namespace

QString FlashTemplate::fileOfTemplate(const QString& relativePath) const
{
    return tmplPathForName(iTmplName) + relativePath;
}

bool FlashTemplate::copyBookSWFToFile(const QString& path) const
{
    return copyFileOver(fileOfTemplate(u"book.swf"_s), path);
}

bool FlashTemplate::copyBookJSFile(const QString& path) const
{
    return copyFileOver(fileOfTemplate(u"javascript/jquery-1.7.2.min.js"_s), path);
}

bool FlashTemplate::copyElseSWFToFile(const QString& path) const
{
    return copyFileOver(fileOfTemplate(u"playerProductInstall.swf"_s), path);
}

bool FlashTemplate::copyJavaScriptDirToDir(const QString& folder) const
{
    return copyFolderOver(fileOfTemplate(u"javascript"_s), folder);
}

bool FlashTemplate::copyStyleDirToDir(const QString& folder) const
{
    return copyFolderOver(fileOfTemplate(u"style"_s), folder);
}

void FlashTemplate::copyExtfileToDir(const QString& folder) const
{
    for (const QString& name : { u"demo.png"_s, u"thickness.png"_s })
        FileSteps::copyFile(fileOfTemplate(name), folder + u'/' + name);
}

void FlashTemplate::copyHTMLToFile(const QString&) const { }

QString FlashTemplate::tmplHTMLFilePath() const
{
    for (const QString& folder : { tmplPathForName(iTmplName), tmplDataPath() }) {
        // Description files may use either separator.
        QString candidate = folder + QString(iHTMLFilePath).replace(u'\\', u'/');
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return {};
}

QString FlashTemplate::GetThePreviewJSPath() const
{
    return fileOfTemplate(u"javascript/flipBook.min.js"_s);
}

QString FlashTemplate::GetTheMainJSPath() const
{
    return fileOfTemplate(u"javascript/main_preview.js"_s);
}

} // namespace leafcast
