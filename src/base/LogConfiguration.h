// SPDX-License-Identifier: MIT
#pragma once

#include "base/Log.h"

namespace leafcast::LogConfiguration {

/// Configures the log from a properties file whose keys start with "log4cocoa.": its file appender,
/// "QuorvaneFileLog", writes to logFile. Makes the log file's folder. A file that can't be read
/// leaves the log as it was.
void configureFromFile(const QString& propertiesFile, const QString& logFile);

/// Adds a sink on standard error for records of at least the given level: one line each,
/// "leafcast: warning: text" (the others are debug, info and error).
void addStandardErrorSink(LogLevel threshold);

} // namespace leafcast::LogConfiguration
