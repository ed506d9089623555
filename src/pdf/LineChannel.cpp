// SPDX-License-Identifier: MIT
#include "pdf/LineChannel.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <poll.h>
#include <sys/socket.h>

namespace leafcast {

namespace {

    constexpr qsizetype longestLine = 64 << 20;

    int millisecondsTo(LineChannel::Deadline deadline)
    {
        using namespace std::chrono;
        const auto left = ceil<milliseconds>(deadline - steady_clock::now()).count();
        return static_cast<int>(
            std::clamp<decltype(left)>(left, 0, std::numeric_limits<int>::max()));
    }

    bool isWorthAnotherTry()
    {
        return errno == EINTR || errno == EAGAIN;
    }

} // namespace

LineChannel::Result LineChannel::send(const QByteArray& line, Deadline deadline)
{
    const QByteArray bytes = line + '\n';
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        if (const Result result = waitFor(POLLOUT, deadline); result != Result::Done)
            return result;
        const ssize_t count = ::send(iSocket.get(), bytes.constData() + sent,
            static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && !isWorthAnotherTry())
            return Result::Closed;
        sent += std::max<ssize_t>(count, 0);
    }
    return Result::Done;
}

LineChannel::Result LineChannel::receive(QByteArray& line, Deadline deadline)
{
    qsizetype searched = 0;
    for (;;) {
        const qsizetype end = iReceived.indexOf('\n', searched);
        if (end >= 0) {
            line = iReceived.left(end);
            iReceived.remove(0, end + 1);
            return Result::Done;
        }
        searched = iReceived.size();
        if (searched > longestLine)
            return Result::TooLong;
        if (const Result result = waitFor(POLLIN, deadline); result != Result::Done)
            return result;
        if (const Result result = readSome(); result != Result::Done)
            return result;
    }
}

bool LineChannel::isIdle() const
{
    pollfd state{ iSocket.get(), POLLIN, 0 };
    return iSocket.isOpen() && iReceived.isEmpty() && poll(&state, 1, 0) == 0;
}

LineChannel::Result LineChannel::waitFor(short event, Deadline deadline) const
{
    for (;;) {
        pollfd state{ iSocket.get(), event, 0 };
        const int ready = poll(&state, 1, millisecondsTo(deadline));
        if (ready > 0)
            return Result::Done;
        if (ready == 0)
            return Result::TimedOut;
        if (errno != EINTR)
            return Result::Closed;
    }
}

LineChannel::Result LineChannel::readSome()
{
    std::array<char, 1 << 16> bytes;
    const ssize_t count = recv(iSocket.get(), bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count == 0 || (count < 0 && !isWorthAnotherTry()))
        return Result::Closed;
    iReceived.append(bytes.data(), std::max<ssize_t>(count, 0));
    return Result::Done;
}

} // namespace leafcast
