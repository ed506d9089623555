// SPDX-License-Identifier: MIT
#include "cli/LogOptions.h"

#include "base/FileSteps.h"
#include "base/LogConfiguration.h"
#include "base/ResourceFolder.h"
#include "cli/Command.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    void requireWritable(const QString& path)
    {
        FileSteps::makeFolders(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::Append))
            throw CommandFailure(ExitCode::OutputNotWritable,
                u"the log file %1 can't be written: %2"_s.arg(path, file.errorString()));
    }

    void logTo(const QString& path)
    {
        requireWritable(path);
        LogConfiguration::configureFromFile(
            ResourceFolder::pathForResource(u"logging"_s, u"properties"_s), path);
    }

} // namespace

void LogOptions::addTo(CLI::App& program)
{
    program.add_flag("-v,--verbose", verbose, "Show the log's warnings on standard error");
    program.add_option("--log-file", logFile, "Append the log to a file")->type_name("FILE");
}

void LogOptions::configure() const
{
    if (!logFile.empty())
        logTo(QFileInfo(pathFromArgument(logFile)).absoluteFilePath());
    if (verbose)
        LogConfiguration::addStandardErrorSink(LogLevel::Warn);
}

} // namespace leafcast
