// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

namespace leafcast::service {

/// What this process may use. Applied once, before the first byte of a document is read.
struct Limits {
    int memoryMebibytes = 1024; // address space
    int pageSeconds = 30; // processor time of one request
    int niceness = 0; // is added to that of whoever started it

    void apply() const;
};

/// While it lives, the process ends itself when the request it stands for has used up its processor
/// time, or when the process that started this one has died. A second line of defence: the client
/// kills a worker from outside, but a client that was itself killed can't. Idle unless limits have
/// been applied.
class RequestWatch {
public:
    explicit RequestWatch(int seconds);
    ~RequestWatch();
    RequestWatch(const RequestWatch&) = delete;
    RequestWatch& operator=(const RequestWatch&) = delete;
};

} // namespace leafcast::service
