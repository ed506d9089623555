// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <stdexcept>

namespace leafcast {

/// Why an archive could not be written: one clause for people, in UTF-8.
class ArchiveFailure : public std::runtime_error {
public:
    explicit ArchiveFailure(const QString& reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};

} // namespace leafcast
