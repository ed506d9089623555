// SPDX-License-Identifier: MIT
#include "base/UserDefaults.h"

#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

class UserDefaultsTest : public testing::Test {
protected:
    QTemporaryDir iFolder;
    QString iFile = iFolder.filePath(u"100%1 %2/defaults.json"_s);
};

TEST_F(UserDefaultsTest, ADamagedFileIsSetAsideWhenItIsReplacedButNotOnesThatAreWhole)
{
    writeTestFile(iFile, "{\"cut off");
    const LogCapture log;
    UserDefaults defaults(iFile);
    UserDefaults others(iFile);
    for (UserDefaults* each : { &others, &defaults }) {
        each->setObject(each == &others ? u"b"_s : u"a"_s, 1);
        each->synchronize();
    }
    EXPECT_EQ(readTestFile(iFile + u".damaged-1"_s), "{\"cut off");
    EXPECT_EQ(readTestFile(iFile).simplified(), R"({ "a": 1, "b": 1 })");
    EXPECT_EQ(log.lines().size(), 3) << log.lines().join(u'\n').toStdString();
}

TEST_F(UserDefaultsTest, WhatCannotBeReadIsNotOverwrittenAndTheValuesWait)
{
    const QString inside = writeTestFile(iFile + u"/a folder in its place"_s, "kept");
    UserDefaults defaults(iFile);
    defaults.setObject(u"a"_s, 1);
    const LogCapture log;
    defaults.synchronize();
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_EQ(readTestFile(inside), "kept");

    QDir(iFile).removeRecursively();
    defaults.synchronize();
    EXPECT_EQ(UserDefaults(iFile).objectForKey(u"a"_s).toInt(), 1);
}

TEST_F(UserDefaultsTest, AWriteThatFailsKeepsFileAndValues)
{
    writeTestFile(iFile, R"({"b": 2})");
    UserDefaults defaults(iFile);
    defaults.setObject(u"a"_s, QString(5000, u'x'));
    const LogCapture log;
    {
        const FileSizeLimit limit(1000);
        defaults.synchronize();
    }
    EXPECT_EQ(readTestFile(iFile), R"({"b": 2})");
    EXPECT_EQ(log.lines().size(), 1);
    defaults.synchronize();
    EXPECT_EQ(UserDefaults(iFile).objectForKey(u"a"_s).toString().size(), 5000);
}
