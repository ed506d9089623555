// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Where a book goes: a folder, or a package NAME.app inside a folder.
class OutputPlace {
public:
    enum class Kind { Folder, Package };

    /// packageName: without extension; not used for a folder.
    OutputPlace(const QString& folder, Kind kind, const QString& packageName);

    /// Refuses what is no book of ours, naming what would be lost. Throws CommandFailure; changes
    /// nothing.
    void requireReplaceable() const;
    /// Makes the folder and tries that it can be written to. Throws CommandFailure.
    void prepare() const;
    /// Refuses when the disk has too little room for page pictures of so many bytes, less those
    /// that they replace. Throws CommandFailure; what was there is left as it is.
    void requireRoomFor(qint64 pictureBytes) const;

    const QString& folder() const { return iFolder; }

private:
    void requireReplaceableFolder() const;
    void requireReplaceablePackage() const;
    QString bookFolder() const;

    QString iFolder;
    Kind iKind;
    QString iPackagePath;
};

} // namespace leafcast
