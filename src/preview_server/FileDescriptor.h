// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace leafcast::preview {

/// Owns an open file; -1 when there is none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : iDescriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : iDescriptor(std::exchange(other.iDescriptor, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(iDescriptor, other.iDescriptor);
        return *this;
    }
    ~FileDescriptor()
    {
        if (iDescriptor >= 0)
            close(iDescriptor);
    }

    int get() const { return iDescriptor; }
    explicit operator bool() const { return iDescriptor >= 0; }

private:
    int iDescriptor = -1;
};

} // namespace leafcast::preview
