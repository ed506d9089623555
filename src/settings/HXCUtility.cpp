// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "base/FolderWalk.h"
#include "settings/FileViewer.h"
#include "settings/WorkFolder.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace leafcast {

QString HXCUtility::tmpDiractoryForCurrentUser()
{
    const QString folder = QDir::tempPath();
    return folder.isEmpty() ? u"/tmp"_s : folder;
}

QString HXCUtility::forceTmpDiractory(const QString& name)
{
    return WorkFolder::make(name);
}

void HXCUtility::openFolderFromFolderOrFile(const QString& path)
{
    FileViewer::select(path);
}

QStringList HXCUtility::imageFilesOfDiractoryAtPath(const QString& folder)
{
    QStringList names = FolderWalk::entryNames(folder);
    names.removeIf(
        [](const QString& name) { return !name.endsWith(u".jpg"_s) && !name.endsWith(u".png"_s); });
    return names;
}

QStringList HXCUtility::subFolderOfFolder(const QString& folder)
{
    return FolderWalk::subfolders(folder);
}

void HXCUtility::makeDiractoryTrustByFlash(const QString& path, const FlashTrustFolders& folders)
{
    FlashTrustFile(folders).add(path);
}

} // namespace leafcast
