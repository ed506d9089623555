// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// Where the .zip of a book or package goes. What it requires it requires before anything is
/// changed; a failure is a CommandFailure.
class ArchivePlace {
public:
    /// path: absolute, ending in ".zip".
    explicit ArchivePlace(const QString& path);

    /// Refuses a file that is no archive of a book of ours.
    void requireReplaceable() const;
    /// Refuses a path where no file can be made.
    void requireWritable() const;

    const QString& path() const { return iPath; }
    QString folder() const;

private:
    QString whyUnwritable() const;
    bool isNameTooLong() const;

    QString iPath;
};

} // namespace leafcast
