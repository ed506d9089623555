// SPDX-License-Identifier: MIT
#include "base/LogConfiguration.h"

#include "base/ResourceFolder.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(LogConfiguration, TheShippedPropertiesWriteRecordsToTheGivenFile)
{
    const QTemporaryDir folder;
    const QString logFile = folder.filePath(u"Quorvane/FlipBook/test.log"_s);
    LogConfiguration::configureFromFile(
        ResourceFolder::pathForResource(u"logging"_s, u"properties"_s), logFile);

    LOG_WARN("FlashBookOutput", u"Straße fehlt"_s);

    const QByteArray log = readTestFile(logFile);
    for (const auto& part : { u"WARN"_s, u"FlashBookOutput"_s, u"Test.cpp"_s, u"Straße fehlt"_s })
        EXPECT_TRUE(log.contains(part.toUtf8())) << log.toStdString();
}

TEST(LogConfiguration, StandardErrorGetsOneLineARecordFromTheThresholdOn)
{
    testing::internal::CaptureStderr();
    LogConfiguration::addStandardErrorSink(LogLevel::Info);
    LOG_DEBUG("FileSteps", u"a"_s);
    LOG_INFO("FileSteps", u"b"_s);
    LOG_WARN("FileSteps", u"Straße"_s);
    LOG_ERROR("FileSteps", u"d"_s);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        u"leafcast: info: b\nleafcast: warning: Straße\nleafcast: error: d\n"_s.toStdString());
}
