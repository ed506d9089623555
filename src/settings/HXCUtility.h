// SPDX-License-Identifier: MIT
#pragma once

#include "settings/FlashTrustFile.h"

#include <QStringList>

namespace leafcast {

/// Chores around files and folders. None reports an error: failures are logged, and leave an empty
/// result.
class HXCUtility {
public:
    HXCUtility() = delete;

    /// The user's temporary folder; "/tmp" when there is none.
    static QString tmpDiractoryForCurrentUser();

    /// Makes a new, uniquely named and private folder "/tmp/NAME/temp.XXXXXX", see WorkFolder.
    static QString forceTmpDiractory(const QString& name);

    /// Shows the file or folder in the file manager, selected inside its parent.
    static void openFolderFromFolderOrFile(const QString& path);

    /// Names of the direct entries that end with ".jpg" or ".png" in small letters, in natural
    /// order.
    static QStringList imageFilesOfDiractoryAtPath(const QString& folder);

    /// Full paths of all folders below, at every depth, in natural order, a folder before what it
    /// holds.
    static QStringList subFolderOfFolder(const QString& folder);

    /// Enters the path into the Flash Player's list of trusted folders, once.
    static void makeDiractoryTrustByFlash(
        const QString& path, const FlashTrustFolders& folders = FlashTrustFolders::standard());
};

} // namespace leafcast
