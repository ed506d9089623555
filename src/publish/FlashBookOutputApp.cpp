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

    constexpr auto viewerContents = "AppFiles/TmplData/mac.app/Contents"_L1;

    /// Its description; the empty string when no viewer is installed.
    QString viewerDescription()
    {
        return ResourceFolder::pathForResource(u"Info"_s, u"plist"_s, viewerContents);
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

void FlashBookOutputApp::copyViewer()
{
    QString reason;
    const QString viewer = ResourceFolder::path() + u'/' + viewerContents;
    const bool copied = FileSteps::copyFolder(viewer, contentsFolder(), &reason);
    if (!copied)
        LOG_ERROR("FlashBookOutputApp", u"ouput the book,copy failed:%1"_s.arg(reason));
    keepResult(copied || viewerDescription().isEmpty(), contentsFolder());
}

std::vector<FlashBookOutput::Companion> FlashBookOutputApp::companions() const
{
    auto all = FlashBookOutput::companions();
    all.push_back({ viewerDescription(), contentsFolder() + u"/Info.plist"_s,
        u"the viewer of packages is not installed, so the package does not open by a double click"_s });
    return all;
}

QString FlashBookOutputApp::contentsFolder() const
{
    return folderAbove(saveToFolder());
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
