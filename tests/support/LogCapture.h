// SPDX-License-Identifier: MIT
#pragma once

#include "base/Log.h"

#include <memory>
#include <QStringList>

namespace leafcast {

/// Collects every record of at least the given level while it lives, each as "WARN FileSteps:
/// text".
class LogCapture {
public:
    explicit LogCapture(LogLevel threshold = LogLevel::Warn);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList lines() const;

private:
    struct Sink;
    std::unique_ptr<Sink> iSink;
};

} // namespace leafcast
