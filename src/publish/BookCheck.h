// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <vector>

namespace leafcast {

class FlashBookOutput;

/// What a finished output lacks, because writing goes on after a failure. Made with the writer
/// that did it, right afterwards.
struct BookCheck {
    explicit BookCheck(const FlashBookOutput& book);

    bool isComplete() const { return pagesWithoutPicture.empty() && missingFiles.isEmpty(); }

    std::vector<int> pagesWithoutPicture; // page numbers, in book order
    /// Full paths of whatever else is not there or could not be written, so that an earlier
    /// output's may lie in its place.
    QStringList missingFiles;
    /// Clauses on programs that books carry but that are not installed; without them a book is
    /// complete all the same.
    QStringList notShipped;
};

/// Whether the folder holds a book that was written by FlashBookOutput.
bool isBookFolder(const QString& path);

/// Whether the folder is a package that was written by FlashBookOutputApp.
bool isBookPackage(const QString& path);

} // namespace leafcast
