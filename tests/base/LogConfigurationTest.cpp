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
    EXPECT_TRUE(log.contains("WARN")) << log.toStdString();
    EXPECT_TRUE(log.contains("FlashBookOutput")) << log.toStdString();
    EXPECT_TRUE(log.contains("LogConfigurationTest.cpp")) << log.toStdString();
    EXPECT_TRUE(log.contains("Stra\xC3\x9F"
                             "e fehlt"))
        << log.toStdString();
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
        "leafcast: info: b\nleafcast: warning: Stra\xC3\x9F"
        "e\nleafcast: error: d\n");
}
