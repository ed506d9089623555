// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace leafcast {

/// Where the trust file lies.
struct FlashTrustFolders {
    /// The application-support folder of the whole machine; empty when the system names none.
    QString localDomainFolder;
    /// The folder that is used, and gets a copy of the file, when the system names none.
    QString fixedFolder;

    /// The first data folder of the machine (XDG_DATA_DIRS) for both, so that nothing is created
    /// outside it.
    static FlashTrustFolders standard();
};

/// The Flash Player's list of trusted folders, "Macromedia/FlashPlayerTrust/PT.cfg": UTF-16 with a
/// byte-order mark, one path a line, no line feed at the end. Failures are logged only.
class FlashTrustFile {
public:
    explicit FlashTrustFile(const FlashTrustFolders& folders);

    /// Does nothing when the path is in the list; a list that can't be read stays as it is.
    void add(const QString& path) const;

private:
    struct List {
        bool isReadable = true;
        QStringList paths;
    };
    List read() const;
    void copyBesideFixedFolder() const;

    FlashTrustFolders iFolders;
    QString iFile;
};

} // namespace leafcast
