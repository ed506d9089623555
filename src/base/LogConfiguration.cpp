// SPDX-License-Identifier: MIT
#include "base/LogConfiguration.h"

#include "base/FileSteps.h"
#include "base/LogLevels.h"

#include <algorithm>
#include <log4cplus/configurator.h>
#include <log4cplus/consoleappender.h>
#include <log4cplus/helpers/property.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>
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

    const char* wordFor(log4cplus::LogLevel level)
    {
        if (level >= log4cplus::ERROR_LOG_LEVEL)
            return "error";
        if (level >= log4cplus::WARN_LOG_LEVEL)
            return "warning";
        return level >= log4cplus::INFO_LOG_LEVEL ? "info" : "debug";
    }

    /// A line as command line programs write it.
    class TerminalLayout : public log4cplus::Layout {
    public:
        void formatAndAppend(
            log4cplus::tostream& output, const log4cplus::spi::InternalLoggingEvent& event) override
        {
            output << "leafcast: " << wordFor(event.getLogLevel()) << ": " << event.getMessage()
                   << '\n';
        }
    };

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
    sink->setLayout(std::make_unique<TerminalLayout>());
    sink->setThreshold(toLog4cplus(threshold));
    Logger root = Logger::getRoot();
    root.addAppender(sink);
    root.setLogLevel(std::min(root.getLogLevel(), toLog4cplus(threshold)));
}

} // namespace leafcast::LogConfiguration
