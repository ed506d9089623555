// SPDX-License-Identifier: MIT
#include "base/LogConfiguration.h"

#include "base/FileSteps.h"

#include <log4cplus/configurator.h>
#include <log4cplus/consoleappender.h>
#include <log4cplus/helpers/property.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <QFile>
#include <QFileInfo>

namespace leafcast::LogConfiguration {

namespace {

    const std::string foreignPrefix = "log4cocoa.";
    const std::string nativePrefix = "log4cplus.";
    const std::string logFileKey = "log4cocoa.appender.QuorvaneFileLog.File";

    log4cplus::helpers::Properties withNativeKeys(const log4cplus::helpers::Properties& properties)
    {
        log4cplus::helpers::Properties native;
        for (const std::string& key : properties.propertyNames()) {
            const bool foreign = key.starts_with(foreignPrefix);
            native.setProperty(foreign ? nativePrefix + key.substr(foreignPrefix.size()) : key,
                properties.getProperty(key));
        }
        return native;
    }

} // namespace

void configureFromFile(const QString& propertiesFile, const QString& logFile)
{
    if (!QFileInfo(propertiesFile).isReadable())
        return;
    FileSteps::makeFolders(QFileInfo(logFile).path());
    log4cplus::helpers::Properties properties(QFile::encodeName(propertiesFile).toStdString());
    properties.setProperty(logFileKey, QFile::encodeName(logFile).toStdString());
    log4cplus::PropertyConfigurator(withNativeKeys(properties)).configure();
}

void addStandardErrorSink(LogLevel threshold)
{
    using namespace log4cplus;
    const bool logToStdErr = true;
    const bool immediateFlush = true;
    SharedAppenderPtr sink(new ConsoleAppender(logToStdErr, immediateFlush));
    sink->setLayout(std::make_unique<PatternLayout>("leafcast: %p: %m%n"));
    sink->setThreshold(threshold == LogLevel::Debug ? DEBUG_LOG_LEVEL : WARN_LOG_LEVEL);
    Logger root = Logger::getRoot();
    root.addAppender(sink);
    if (threshold == LogLevel::Debug)
        root.setLogLevel(DEBUG_LOG_LEVEL);
}

} // namespace leafcast::LogConfiguration
