// SPDX-License-Identifier: MIT
#include "publish/FlashBookOutput.h"

#include "base/FileSteps.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    const std::initializer_list<QLatin1StringView> filesOfEarlierOutputs
        = { "ImgFileURL.jpg"_L1, "ImgFileURL.png"_L1, "ImgFileURL.gif"_L1, "LogoFile.jpg"_L1,
              "LogoFile.png"_L1, "LogoFile.bmp"_L1, "LogoFile.gif"_L1, "SoundFile.mp3"_L1 };

} // namespace

void FlashBookOutput::removeExtFile(const QString& folder) const
{
    const QString extFiles = inResources(baseOf(folder), iExterFilesFolder);
    for (const QLatin1StringView name : filesOfEarlierOutputs)
        FileSteps::remove(extFiles + u'/' + name);
}

void FlashBookOutput::prepaireNomalPage(const QString& folder)
{
    const QString base = folder.isEmpty() ? iSaveToFolder : folder;
    FileSteps::makeFolders(inResources(base, iNormalPageFolder));
    for (const auto& page : iFlashPageSource->normalPages()) {
        if (iFlashPageSource->stop())
            break;
        if (!page)
            continue;
        const QString copy = inResources(base, getNormalPageURL(*page));
        keepResult(FileSteps::replaceFile(page->pageFilePath(), copy), copy);
    }
}

void FlashBookOutput::prepaireZoomendPage(const QString& folder)
{
    if (iZoomedPageSameAsNormalPage)
        return;
    const QString base = folder.isEmpty() ? iSaveToFolder : folder;
    for (const auto& page : iFlashPageSource->zoomedPages()) {
        if (!page)
            continue;
        const QString copy = inResources(
            base, u"%1/%2.swf"_s.arg(iZoomedPageFolder, QString::number(page->pageIndex())));
        keepResult(FileSteps::copyFile(page->pageFilePath(), copy), copy);
    }
}

// Thumbnails are not published: the player shows the pages themselves.
void FlashBookOutput::prepaireThumbPage(const QString&) const { }

void FlashBookOutput::prepaireExtFiles(const QString& folder)
{
    FileSteps::makeFolders(inResources(baseOf(folder), iExterFilesFolder));
    for (const auto& property : iFlashTemplate->properties()) {
        if (!property)
            continue;
        copyExtFile(folder, *property);
        // At the top only, an emptied value takes the file of that name away.
        if (property->propertyType() == pt_file && property->value().isEmpty())
            FileSteps::remove(inResources(baseOf(folder), extFileURL(*property)));
        prepaireExtFiles(folder, *property);
    }
}

void FlashBookOutput::prepaireExtFiles(
    const QString& folder, const FlashTemplateProperty& atChildPro)
{
    for (const auto& child : atChildPro.childProperties()) {
        if (!child)
            continue;
        copyExtFile(folder, *child);
        prepaireExtFiles(folder, *child);
    }
}

void FlashBookOutput::copyExtFile(const QString& folder, const FlashTemplateProperty& property)
{
    if (property.propertyType() != pt_file || property.value().isEmpty())
        return;
    const QString copy = inResources(baseOf(folder), extFileURL(property));
    keepResult(FileSteps::replaceFile(property.value(), copy), copy);
}

void FlashBookOutput::PrepareAnnotationFiles(const QString& folder)
{
    if (!iFlashPagesAnnotations)
        return;
    const QString target = inResources(baseOf(folder), iAnnotationFilesFolder);
    FileSteps::makeFolders(target);
    for (const QString& file : iFlashPagesAnnotations->needFiles()) {
        const QString copy = target + u'/' + QFileInfo(file).fileName();
        // Deliberate: an older file of that name stays.
        if (QFileInfo::exists(file) && !FileSteps::exists(copy))
            keepResult(FileSteps::copyFile(file, copy), copy);
    }
}

QString FlashBookOutput::baseOf(const QString& folder) const
{
    // Deliberate: these steps take any other folder as the process's working folder.
    return folder.isEmpty() ? iSaveToFolder : QString();
}

} // namespace leafcast
