// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <QStringList>

namespace leafcast {

/// Collects the warnings and errors while it lives, each as "WARN FileSteps: text".
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList lines() const;

private:
    struct Sink;
    std::unique_ptr<Sink> iSink;
};

} // namespace leafcast
