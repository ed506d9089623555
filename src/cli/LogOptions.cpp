// SPDX-License-Identifier: MIT
#include "cli/LogOptions.h"

#include "base/LogConfiguration.h"
#include "base/ResourceFolder.h"
#include "cli/Command.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

void LogOptions::addTo(CLI::App& program)
{
    program.add_flag("-v,--verbose", verbose, "Show the log's warnings on standard error");
    program.add_option("--log-file", logFile, "Append the log to a file")->type_name("FILE");
}

void LogOptions::configure() const
{
    if (!logFile.empty())
        LogConfiguration::configureFromFile(
            ResourceFolder::pathForResource(u"logging"_s, u"properties"_s),
            QFileInfo(pathFromArgument(logFile)).absoluteFilePath());
    if (verbose)
        LogConfiguration::addStandardErrorSink(LogLevel::Warn);
}

} // namespace leafcast
