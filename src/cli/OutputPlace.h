// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace leafcast {

class FlashBookOutput;

/// Where a book goes: a folder, or a package NAME.app inside a folder. What it requires it requires
/// before anything is changed; a failure is a CommandFailure.
class OutputPlace {
public:
    enum class Kind { Folder, Package };

    /// packageName: without extension; not used for a folder.
    OutputPlace(const QString& folder, Kind kind, const QString& packageName);

    /// Refuses what is no book of ours, naming what would be lost.
    void requireReplaceable() const;
    /// Refuses a folder that can't be made or written to.
    void requireWritable() const;
    /// Refuses the name of a file or package that is longer than the file system takes.
    void requireNameFits(const QString& name) const;
    /// Refuses to read a file that the output would replace.
    void requireOutside(const QStringList& inputs) const;
    /// Refuses when the disk has too little room for the writer's pages, beside those they replace.
    void requireRoomFor(const FlashBookOutput& writer) const;

    void makeFolder() const;

    const QString& folder() const { return iFolder; }
    /// The folder or the package.
    const QString& bookPath() const { return iKind == Kind::Folder ? iFolder : iPackagePath; }

private:
    void requireReplaceableFolder() const;
    void requireReplaceablePackage() const;
    QStringList replacedFolders() const;

    QString iFolder; // absolute
    Kind iKind;
    QString iPackagePath;
};

} // namespace leafcast
