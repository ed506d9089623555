// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutput.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/ResourceFolder.h"
#include "publish/ReaderDataFiles.h"
#include "settings/AppSettings.h"
#include "templates/ColorCategory.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString joined(const QString& folder, const QString& relativePath)
    {
        return folder.isEmpty() || folder.endsWith(u'/') ? folder + relativePath
                                                         : folder + u'/' + relativePath;
    }

    /// "5.jpg" for page 5.
    QString pictureName(const FlashPage& page)
    {
        return u"%1.%2"_s.arg(
            QString::number(page.pageIndex()), QFileInfo(page.pageFilePath()).suffix());
    }

} // namespace

FlashBookOutput::FlashBookOutput(PageSource pageSource, Template flashTemplate,
    const QString& saveToFolder, const QString& fileName)
    : iFlashTemplate(std::move(flashTemplate))
    , iFlashPageSource(std::move(pageSource))
    , iSaveToFolder(saveToFolder)
    , iSaveToFileName(fileName)
    , iPageSize(AppSettings::shareInstance().PageWidth(), AppSettings::shareInstance().PageHeight())
{
}

void FlashBookOutput::ouputTheBook()
{
    if (!QFileInfo::exists(iSaveToFolder))
        return;
    const QString ownFolder;
    removeExtFile(ownFolder);
    prepaireNomalPage(ownFolder);
    prepaireZoomendPage(ownFolder);
    prepaireThumbPage(ownFolder);
    prepaireExtFiles(ownFolder);
    PrepareAnnotationFiles(ownFolder);
    outputHTMLPage();
    outputPlayer();
    // Last of what every book has: the script holds the size of the first picture.
    ouputBookXML(mainScriptFileName());
    outputReaderData();
}

void FlashBookOutput::keepResult(bool succeeded, const QString& path)
{
    if (!succeeded)
        iFailedFiles.append(path);
}

void FlashBookOutput::outputHTMLPage()
{
    const QString templateFile = iFlashTemplate->tmplHTMLFilePath();
    const QString page = outputHTMLFileName();
    keepResult(iHTMLConfig ? iHTMLConfig->generateHTMLFrom(templateFile, page)
                           : FileSteps::replaceFile(templateFile, page),
        page);
}

void FlashBookOutput::outputPlayer()
{
    const QString scripts = inBook(u"javascript"_s);
    FileSteps::remove(scripts);
    FileSteps::makeFolder(scripts);
    keepResult(iFlashTemplate->copyBookJSFile(jQueryFileName()), jQueryFileName());
    keepResult(iFlashTemplate->copyStyleDirToDir(styleFolderName()), styleFolderName());
    copyServer();
}

void FlashBookOutput::copyServer()
{
    const QString source = GetServerPath();
    // Deliberate: a server from an earlier output stays.
    if (FileSteps::exists(serverFileName()))
        return;
    if (source.isEmpty())
        LOG_WARN("FlashBookOutput", u"there is no preview server to copy"_s);
    else
        keepResult(FileSteps::copyFile(source, serverFileName()), serverFileName());
}

void FlashBookOutput::outputReaderData()
{
    const ReaderDataFiles files(readerDataFolder());
    if (!wantsReaderData()) {
        files.remove();
        return;
    }
    const auto imageURL
        = [this](const FlashPage& page) { return joined(iResourceFolder, getNormalPageURL(page)); };
    const ReaderBook book{ *iFlashPageSource, iFlashPagesAnnotations != nullptr,
        iFlashOutline.get(), imageURL, iWorkerCount };
    keepResult(files.write(book), files.bookFile());
}

std::vector<FlashBookOutput::Companion> FlashBookOutput::companions() const
{
    return { { GetServerPath(), serverFileName(), u"the preview server is not installed"_s } };
}

bool FlashBookOutput::wantsReaderData() const
{
    const auto property = iFlashTemplate->propertyForKey(u"readerData"_s);
    return property && property->propertyType() == pt_bool && valueAsBool(property->value());
}

QString FlashBookOutput::outputHTMLFileName() const
{
    return inBook(iSaveToFileName.isNull() ? u"index.html"_s : iSaveToFileName);
}

QString FlashBookOutput::outputSWFName() const
{
    return inBook(u"book.swf"_s);
}

QString FlashBookOutput::mainScriptFileName() const
{
    return inBook(u"javascript/main.js"_s);
}

QStringList FlashBookOutput::readerDataFileNames() const
{
    return ReaderDataFiles(readerDataFolder()).paths();
}

QString FlashBookOutput::readerDataFolder() const
{
    return inResources(iSaveToFolder, iSearchInfoFolder);
}

QString FlashBookOutput::jQueryFileName() const
{
    return inBook(u"javascript/jquery-1.7.2.min.js"_s);
}

QString FlashBookOutput::styleFolderName() const
{
    return inBook(u"style"_s);
}

QString FlashBookOutput::serverFileName() const
{
    return inBook(u"iPadPreview"_s);
}

QString FlashBookOutput::pageFileName(const FlashPage& page) const
{
    return inResources(iSaveToFolder, getNormalPageURL(page));
}

QString FlashBookOutput::extFileName(const FlashTemplateProperty& property) const
{
    return inResources(iSaveToFolder, extFileURL(property));
}

QStringList FlashBookOutput::annotationFileNames() const
{
    QStringList names;
    if (iFlashPagesAnnotations)
        for (const QString& file : iFlashPagesAnnotations->needFiles())
            names.append(inResources(
                iSaveToFolder, joined(iAnnotationFilesFolder, QFileInfo(file).fileName())));
    return names;
}

QString FlashBookOutput::extFileURL(const FlashTemplateProperty& property) const
{
    return u"%1/%2.%3"_s.arg(
        iExterFilesFolder, property.key(), QFileInfo(property.value()).suffix());
}

QString FlashBookOutput::GetServerPath()
{
    return ResourceFolder::pathForResource(u"iPadPreview"_s, QString(), u"Lib"_s);
}

QString FlashBookOutput::getNormalPageURL(const FlashPage& page) const
{
    return joined(iNormalPageFolder, pictureName(page));
}

QString FlashBookOutput::getZoomedPageURL(const FlashPage& page) const
{
    return iZoomedPageSameAsNormalPage ? getNormalPageURL(page)
                                       : joined(iZoomedPageFolder, pictureName(page));
}

QString FlashBookOutput::getThumbPageURL(const FlashPage& page) const
{
    return getNormalPageURL(page);
}

QString FlashBookOutput::inBook(const QString& relativePath) const
{
    return joined(iSaveToFolder, relativePath);
}

QString FlashBookOutput::inResources(const QString& base, const QString& relativePath) const
{
    return joined(base, joined(iResourceFolder, relativePath));
}

quint32 FlashBookOutput::colorWithHexString(const QString& text)
{
    return scannedHexNumber(text);
}

} // namespace leafcast
