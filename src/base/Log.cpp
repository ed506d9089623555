// SPDX-License-Identifier: MIT
#include "base/Log.h"

#include "base/LogLevels.h"

#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

#include <mutex>

namespace leafcast {

namespace {

    // log4cplus complains on standard error about a logger without an appender.
    void silenceUnconfiguredLog()
    {
        static std::once_flag once;
        std::call_once(once, [] {
            log4cplus::Logger::getRoot().addAppender(
                log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
        });
    }

    log4cplus::Logger loggerFor(const char* className)
    {
        silenceUnconfiguredLog();
        return log4cplus::Logger::getInstance(className);
    }

} // namespace

bool Log::isEnabled(const char* className, LogLevel level)
{
    return loggerFor(className).isEnabledFor(toLog4cplus(level));
}

void Log::write(const char* className, LogLevel level, const QString& message, const char* file,
    int line, const char* method)
{
    loggerFor(className).log(toLog4cplus(level), message.toStdString(), file, line, method);
}

} // namespace leafcast
