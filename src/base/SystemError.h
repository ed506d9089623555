// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <cstring>
#include <QString>

namespace leafcast {

/// What the operating system says of an error number, by default that of its last failed call.
inline QString systemErrorText(int number = errno)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

} // namespace leafcast
