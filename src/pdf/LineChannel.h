// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileDescriptor.h"

#include <chrono>
#include <QByteArray>

namespace leafcast {

/// Sends and receives lines over a socket, each within a deadline. A line that comes in may be up
/// to 64 MiB long and may arrive in any number of pieces.
class LineChannel {
public:
    enum class Result { Done, Closed, TimedOut, TooLong };
    using Deadline = std::chrono::steady_clock::time_point;

    LineChannel() = default;
    explicit LineChannel(FileDescriptor socket)
        : iSocket(std::move(socket))
    {
    }

    /// The line break is added here.
    [[nodiscard]] Result send(const QByteArray& line, Deadline deadline);
    /// Without its line break.
    [[nodiscard]] Result receive(QByteArray& line, Deadline deadline);
    bool isOpen() const { return iSocket.isOpen(); }
    /// Open, and nothing has come that was not received.
    bool isIdle() const;

private:
    Result waitFor(short event, Deadline deadline) const;
    Result readSome();

    FileDescriptor iSocket;
    QByteArray iReceived;
};

} // namespace leafcast
