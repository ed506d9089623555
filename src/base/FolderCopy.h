// SPDX-License-Identifier: MIT
#pragma once

#include <QFileInfo>
#include <QStringList>

namespace leafcast {

/// One copy of a folder with everything below it. Links are followed, but for one that leads back
/// to a folder on the way down or to the copy itself, which is left out with one log line. An entry
/// that fails costs one log line and itself only.
class FolderCopy {
public:
    explicit FolderCopy(const QString& source)
        : iSource(source)
    {
    }

    /// Nothing may lie at the destination, which may not be inside the source. False with error()
    /// set when anything failed.
    [[nodiscard]] bool placeAt(const QString& destination);

    /// The first failure, as it was logged.
    const QString& error() const { return iError; }

private:
    bool copyFolder(const QFileInfo& folder, const QString& destination);
    bool copyEntry(const QFileInfo& entry, const QString& destination);
    bool leadsBack(const QString& canonicalFolder) const;
    bool failed(const char* what, const QString& path, const QString& why);

    QString iSource;
    QString iCanonicalDestination;
    QStringList iBranch; // canonical paths of the folder that is copied and those above it
    QString iError;
};

} // namespace leafcast
