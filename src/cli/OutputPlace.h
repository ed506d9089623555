// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ArchivePlace.h"
#include "publish/BookPlace.h"

#include <optional>
#include <QString>
#include <QStringList>

namespace leafcast {

/// Where a book goes: a folder, or a package NAME.app inside a folder; and its archive, where one
/// is wanted: FOLDER.zip beside the folder, or NAME.zip beside the package. What it requires it
/// requires before anything is changed; a failure is a CommandFailure.
class OutputPlace {
public:
    using Kind = BookPlace::Kind;
    enum class Packing { None, Zip };

    /// packageName: without extension; not used for a folder.
    OutputPlace(const QString& folder, Kind kind, const QString& packageName, Packing packing);

    /// Refuses what is no book of ours, naming what would be lost.
    void requireReplaceable() const;
    /// Refuses a folder that can't be made or written to.
    void requireWritable() const;
    /// Refuses the name of a file or package that is longer than the file system takes.
    void requireNameFits(const QString& name) const;
    /// Refuses to read a file that the output would replace.
    void requireOutside(const QStringList& inputs) const;

    void makeFolder() const;

    const QString& folder() const { return iPlace.folder(); }
    /// The folder or the package.
    const QString& bookPath() const { return iPlace.bookPath(); }
    const std::optional<ArchivePlace>& archive() const { return iArchive; }

private:
    BookPlace iPlace;
    std::optional<ArchivePlace> iArchive;
};

} // namespace leafcast
