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
    QString iFile = iFolder.filePath(u"config/defaults.json"_s);
};

TEST_F(UserDefaultsTest, KeepsNumbersAsNumbersAndTextsAsTexts)
{
    {
        UserDefaults defaults(iFile);
        defaults.setObject(u"outputType"_s, 1);
        defaults.setObject(u"lastOutputFileTitle"_s, u"1"_s);
        defaults.synchronize();
    }
    const UserDefaults defaults(iFile);
    EXPECT_TRUE(defaults.objectForKey(u"outputType"_s).isDouble());
    EXPECT_EQ(defaults.objectForKey(u"lastOutputFileTitle"_s), QJsonValue(u"1"_s));
    EXPECT_TRUE(defaults.objectForKey(u"never"_s).isUndefined());
}

TEST_F(UserDefaultsTest, TwoWritersKeepEachOthersKeys)
{
    UserDefaults a(iFile);
    UserDefaults b(iFile);
    a.setObject(u"a"_s, 1);
    b.setObject(u"b"_s, 2);
    a.synchronize();
    b.synchronize();

    const UserDefaults reread(iFile);
    EXPECT_EQ(reread.objectForKey(u"a"_s).toInt(), 1);
    EXPECT_EQ(reread.objectForKey(u"b"_s).toInt(), 2);
    EXPECT_EQ(b.objectForKey(u"a"_s).toInt(), 1);
}

TEST_F(UserDefaultsTest, ADamagedFileIsSetAsideWithOneLogLine)
{
    writeTestFile(iFile, "{\"cut off");
    const LogCapture log;

    UserDefaults defaults(iFile);
    defaults.setObject(u"a"_s, 1);
    defaults.synchronize();

    EXPECT_EQ(readTestFile(iFile + u".damaged-1"_s), "{\"cut off");
    EXPECT_EQ(UserDefaults(iFile).objectForKey(u"a"_s).toInt(), 1);
    EXPECT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
}

TEST_F(UserDefaultsTest, ADamagedFileKeepsItsNameInAFolderNamedLikeAPlaceholder)
{
    const QString file = writeTestFile(iFolder.filePath(u"100%1 %2/defaults.json"_s), "[");
    const UserDefaults defaults(file);
    EXPECT_EQ(readTestFile(file + u".damaged-1"_s), "[");
}

TEST_F(UserDefaultsTest, AnUnchangedValueLeavesAnotherProcesssChoice)
{
    UserDefaults(iFile).synchronize();
    UserDefaults a(iFile);
    a.setObject(u"a"_s, 1);
    a.synchronize();
    UserDefaults b(iFile);
    a.setObject(u"a"_s, 2);
    a.synchronize();
    b.setObject(u"a"_s, 1);
    b.synchronize();
    EXPECT_EQ(b.objectForKey(u"a"_s).toInt(), 2);
}

TEST_F(UserDefaultsTest, AFailedSaveKeepsWhatLiesThereAndIsLogged)
{
    const QString blocker
        = writeTestFile(iFolder.filePath(u"config"_s), "a file where the folder must be");
    UserDefaults defaults(iFile);
    defaults.setObject(u"a"_s, 1);
    const LogCapture log;
    defaults.synchronize();
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_EQ(readTestFile(blocker), "a file where the folder must be");
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
    EXPECT_EQ(defaults.objectForKey(u"a"_s).toInt(), 1);

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

TEST_F(UserDefaultsTest, AFolderThatCannotBeWrittenIsNotTakenForALock)
{
    UserDefaults defaults(u"/sys/leafcast-defaults.json"_s); // not even root can write there
    const LogCapture log;
    defaults.synchronize();
    EXPECT_EQ(log.lines(),
        QStringList(u"WARN UserDefaults: can't save /sys/leafcast-defaults.json: "
                    "its folder can't be written"_s));
}
