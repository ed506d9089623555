// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

enum class LogLevel { Debug, Info, Warn, Error };

/// The one way into the log. Each class writes under its own logger, named after the class; a
/// record carries level, file, line, method and text. Nothing is written until LogConfiguration
/// names a sink. Safe on any thread.
class Log {
public:
    static bool isEnabled(const char* className, LogLevel level);
    static void write(const char* className, LogLevel level, const QString& message,
        const char* file, int line, const char* method);
};

} // namespace leafcast

/// Macros because they capture the source position, and because a disabled level must not format
/// its text.
#define LEAFCAST_LOG(className, level, message)                                                    \
    do {                                                                                           \
        if (leafcast::Log::isEnabled(className, level))                                            \
            leafcast::Log::write(className, level, message, __FILE__, __LINE__, __func__);         \
    } while (false)
#define LOG_DEBUG(className, message) LEAFCAST_LOG(className, leafcast::LogLevel::Debug, message)
#define LOG_INFO(className, message) LEAFCAST_LOG(className, leafcast::LogLevel::Info, message)
#define LOG_WARN(className, message) LEAFCAST_LOG(className, leafcast::LogLevel::Warn, message)
#define LOG_ERROR(className, message) LEAFCAST_LOG(className, leafcast::LogLevel::Error, message)
