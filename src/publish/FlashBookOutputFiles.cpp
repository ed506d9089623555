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

void FlashBookOutput::prepaireNomalPage(const QString& folder) const
{
    const QString base = folder.isEmpty() ? iSaveToFolder : folder;
    FileSteps::makeFolders(inResources(base, iNormalPageFolder));
    for (const auto& page : iFlashPageSource->normalPages())
        if (page)
            FileSteps::replaceFile(
                page->pageFilePath(), inResources(base, getNormalPageURL(*page)));
}

void FlashBookOutput::prepaireZoomendPage(const QString& folder) const
{
    if (iZoomedPageSameAsNormalPage)
        return;
    const QString base = folder.isEmpty() ? iSaveToFolder : folder;
    for (const auto& page : iFlashPageSource->zoomedPages())
        if (page)
            FileSteps::copyFile(page->pageFilePath(),
                inResources(base,
                    u"%1/%2.swf"_s.arg(iZoomedPageFolder, QString::number(page->pageIndex()))));
}

// Thumbnails are not published: the player shows the pages themselves.
void FlashBookOutput::prepaireThumbPage(const QString&) const { }

void FlashBookOutput::prepaireExtFiles(const QString& folder) const
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
    const QString& folder, const FlashTemplateProperty& atChildPro) const
{
    for (const auto& child : atChildPro.childProperties()) {
        if (!child)
            continue;
        copyExtFile(folder, *child);
        prepaireExtFiles(folder, *child);
    }
}

void FlashBookOutput::copyExtFile(
    const QString& folder, const FlashTemplateProperty& property) const
{
    if (property.propertyType() != pt_file || property.value().isEmpty())
        return;
    FileSteps::replaceFile(property.value(), inResources(baseOf(folder), extFileURL(property)));
}

void FlashBookOutput::PrepareAnnotationFiles(const QString& folder) const
{
    if (!iFlashPagesAnnotations)
        return;
    const QString target = inResources(baseOf(folder), iAnnotationFilesFolder);
    FileSteps::makeFolders(target);
    for (const QString& file : iFlashPagesAnnotations->needFiles()) {
        const QString copy = target + u'/' + QFileInfo(file).fileName();
        // Deliberate: an older file of that name stays.
        if (QFileInfo::exists(file) && !FileSteps::exists(copy))
            FileSteps::copyFile(file, copy);
    }
}

QString FlashBookOutput::baseOf(const QString& folder) const
{
    // Deliberate: these steps take any other folder as the process's working folder.
    return folder.isEmpty() ? iSaveToFolder : QString();
}

} // namespace leafcast
