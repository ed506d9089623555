// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <vector>

namespace leafcast {

class FlashBookOutput;

/// What a finished output lacks, because writing goes on after a failure.
struct BookCheck {
    explicit BookCheck(const FlashBookOutput& book);

    bool isComplete() const { return pagesWithoutPicture.empty() && missingFiles.isEmpty(); }

    std::vector<int> pagesWithoutPicture; // page numbers, in book order
    QStringList missingFiles; // full paths of the others: page, scripts, files that settings name
};

/// Whether the folder holds a book that was written by FlashBookOutput.
bool isBookFolder(const QString& path);

/// Whether the folder is a package that was written by FlashBookOutputApp.
bool isBookPackage(const QString& path);

} // namespace leafcast
