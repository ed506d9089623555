// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace leafcast {

/// Owns one file descriptor of the operating system and closes it.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd)
        : iFd(fd)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : iFd(std::exchange(other.iFd, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(iFd, other.iFd);
        return *this;
    }
    ~FileDescriptor() { close(); }

    int get() const { return iFd; }
    bool isOpen() const { return iFd >= 0; }
    /// False when the system reports that something written was lost.
    bool close() { return iFd < 0 || ::close(std::exchange(iFd, -1)) == 0; }

private:
    int iFd = -1;
};

} // namespace leafcast
