// SPDX-License-Identifier: MIT
#include "base/ResourceFolder.h"

#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

class ResourceFolderTest : public testing::Test {
protected:
    void SetUp() override { qputenv("LEAFCAST_RESOURCES", iFolder.path().toLocal8Bit()); }
    void TearDown() override { qputenv("LEAFCAST_RESOURCES", iFormer); }

    QTemporaryDir iFolder;
    QByteArray iFormer = qgetenv("LEAFCAST_RESOURCES");
};

TEST_F(ResourceFolderTest, FindsResourcesByNameTypeAndFolder)
{
    writeTestFile(iFolder.filePath(u"Lib/iPadPreview"_s), "");
    writeTestFile(iFolder.filePath(u"logging.properties"_s), "");
    for (const auto& name : { u"10.jpg"_s, u"2.jpg"_s, u"3.png"_s })
        writeTestFile(iFolder.filePath(u"DemoImgs/"_s + name), "");

    EXPECT_EQ(ResourceFolder::pathForResource(u"iPadPreview"_s, {}, u"Lib"_s),
        iFolder.filePath(u"Lib/iPadPreview"_s));
    EXPECT_EQ(ResourceFolder::pathForResource(u"logging"_s, u"properties"_s),
        iFolder.filePath(u"logging.properties"_s));
    EXPECT_TRUE(ResourceFolder::pathForResource(u"missing"_s, u"txt"_s).isEmpty());
    EXPECT_EQ(ResourceFolder::pathsForResourcesOfType(u"jpg"_s, u"DemoImgs"_s),
        QStringList(
            { iFolder.filePath(u"DemoImgs/2.jpg"_s), iFolder.filePath(u"DemoImgs/10.jpg"_s) }));
}

TEST_F(ResourceFolderTest, AHelperProgramIsTheOneThatTheVariableNamesOrNone)
{
    const char* variable = "LEAFCAST_TEST_HELPER";
    const auto helper = [&](const QString& named) {
        qputenv(variable, QFile::encodeName(named));
        // A program of this name does lie beside this one.
        const QString own = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).fileName();
        const QString found = ResourceFolder::helperProgram(own, variable);
        qunsetenv(variable);
        return found;
    };
    EXPECT_EQ(helper(u"/bin/sh"_s), u"/bin/sh"_s);
    EXPECT_EQ(helper({}), QFile::symLinkTarget(u"/proc/self/exe"_s));
    EXPECT_EQ(helper(iFolder.path()), QString());
    EXPECT_EQ(helper(iFolder.filePath(u"missing"_s)), QString());
    EXPECT_EQ(helper(writeTestFile(iFolder.filePath(u"text"_s), "")), QString());
}
