// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutputApp.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/ResourceFolder.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString packageName(const QString& name)
    {
        return QFileInfo(name).completeBaseName() + u".app"_s;
    }

    QString folderAbove(const QString& path)
    {
        return QFileInfo(path).path();
    }

} // namespace

FlashBookOutputApp::FlashBookOutputApp(PageSource pageSource, Template flashTemplate,
    const QString& saveToFolder, const QString& fileName)
    : FlashBookOutput(std::move(pageSource), std::move(flashTemplate),
        saveToFolder + u'/' + packageName(fileName) + u"/Contents/Resources"_s,
        packageName(fileName))
{
}

void FlashBookOutputApp::ouputTheBook()
{
    FileSteps::remove(outputFileName());
    FileSteps::makeFolders(outputFileName());
    copyViewer();
    FileSteps::makeFolders(saveToFolder());
    FlashBookOutput::ouputTheBook();
}

void FlashBookOutputApp::copyViewer() const
{
    const QString viewer = ResourceFolder::path() + u"/AppFiles/TmplData/mac.app/Contents"_s;
    if (!FileSteps::copyFolder(viewer, folderAbove(saveToFolder())))
        LOG_ERROR("FlashBookOutputApp", u"ouput the book,copy failed:%1"_s.arg(viewer));
}

QString FlashBookOutputApp::outputHTMLFileName() const
{
    return saveToFolder() + u"/index.html"_s;
}

QString FlashBookOutputApp::outputFileName() const
{
    return folderAbove(folderAbove(saveToFolder()));
}

} // namespace leafcast
