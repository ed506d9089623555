// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileDescriptor.h"

#include <QString>

namespace leafcast {

/// Keeps two programs, or two threads of one, from writing into one folder at the same time, until
/// it is destroyed. The folder gets no file for it; on a file system without locks everybody gets
/// it.
class OutputLock {
public:
    /// The folder must exist.
    explicit OutputLock(const QString& folder);

    /// False while another one has it.
    bool take() const;

private:
    FileDescriptor iFolder;
};

} // namespace leafcast
