// SPDX-License-Identifier: MIT
#include "base/UserDefaults.h"

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

TEST_F(UserDefaultsTest, AFailedSaveKeepsTheOldFileAndIsLogged)
{
    writeTestFile(iFolder.filePath(u"config"_s), "a file where the folder must be");
    UserDefaults defaults(iFile);
    defaults.setObject(u"a"_s, 1);
    const LogCapture log;
    defaults.synchronize();
    EXPECT_EQ(log.lines().size(), 1);
}
