// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileDescriptor.h"

#include <mutex>
#include <QStringList>
#include <sys/types.h>

namespace leafcast {

/// A program started in a process group of its own, so that Ctrl-C in the terminal reaches the
/// program that watches it, not it. One socket is its standard input and output; its standard error
/// is kept apart, at most 64 KiB of it; no other file of ours is open in it. Destruction kills it
/// and leaves no zombie. One thread, but for stop().
class ChildProcess {
public:
    struct Ending {
        enum class How {
            Unknown, // none was started, or other code of this program waited for it
            ExitStatus,
            Signal,
        };
        How how = How::Unknown;
        int code = 0; // exit status or signal
        QString lastWords{}; // first line of its standard error
    };

    ChildProcess() = default;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    /// Our end of the socket, blocking; closed when the program can't be started, with error() set.
    FileDescriptor start(const QString& program, const QStringList& arguments);
    const QString& error() const { return iError; }

    /// Kills what still runs, waits for it and tells how it ended.
    Ending end();

    /// Kills it and refuses every further start. Any thread.
    void stop();
    bool isStopped() const;

private:
    void kill() const;
    bool spawn(const QString& program, const QStringList& arguments, int socket, int errors);
    QString lastWords() const;

    mutable std::mutex iMutex;
    pid_t iPid = 0; // 0: none
    bool iStopped = false;
    FileDescriptor iErrors;
    QString iError;
};

} // namespace leafcast
