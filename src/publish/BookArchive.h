// SPDX-License-Identifier: MIT
#pragma once

#include "publish/ArchiveFailure.h"

#include <atomic>
#include <functional>
#include <QStringList>

namespace leafcast {

/// Packs a finished book or package into one .zip for sending and uploading: one folder of the
/// book's name with everything in it, in natural order, a folder before what it holds. Regular
/// files and folders only; anything else is left out with one log line. The same content makes the
/// same bytes.
class BookArchive {
public:
    /// Told a path in the book; an entry that does not belong is left out with all that it holds.
    using Belongs = std::function<bool(const QString& relativePath)>;
    /// Told after each file and folder, on the thread that writes.
    using Progress = std::function<void(int done, int total)>;

    /// book: the path of a folder that has a name.
    explicit BookArchive(const QString& book);

    void setBelongs(Belongs belongs) { iBelongs = std::move(belongs); }
    void setProgress(Progress progress) { iProgress = std::move(progress); }
    /// Ends the writing at the next file; from any thread.
    void stop() { iStopped = true; }

    /// Replaces what lies at the path in one step, at the end. False when it was stopped; throws
    /// ArchiveFailure. Either way nothing has changed there.
    [[nodiscard]] bool writeTo(const QString& path) const;

private:
    struct Entry {
        QString path; // relative to the book, which is "" itself
        bool isFolder;
    };

    std::vector<Entry> entries() const;
    void collect(const QString& folder, std::vector<Entry>& entries) const;

    QString iBook;
    Belongs iBelongs = [](const QString&) { return true; };
    Progress iProgress = [](int, int) {};
    std::atomic<bool> iStopped = false;
};

} // namespace leafcast
