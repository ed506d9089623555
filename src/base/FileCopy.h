// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

/// One copy of one regular file, made beside its destination and put in place by a rename, so that
/// a reader of the destination never sees half a file. Leaves nothing behind when it fails.
class FileCopy {
public:
    enum class WhenTaken { Fail, Replace };

    explicit FileCopy(const QString& source)
        : iSource(source)
    {
    }

    /// Modification time and permissions go along where the file system lets them; where not, one
    /// line in the log says so. False with error() set when anything else failed.
    [[nodiscard]] bool placeAt(const QString& destination, WhenTaken whenTaken);

    const QString& error() const { return iError; }

private:
    bool fail(const char* step);

    QString iSource;
    QString iError;
};

} // namespace leafcast
