// SPDX-License-Identifier: MIT
#include "base/ResourceFolder.h"

#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(ResourceFolder, AHelperProgramIsTheOneThatTheVariableNamesOrNone)
{
    const QTemporaryDir folder;
    const QString own = QFile::symLinkTarget(u"/proc/self/exe"_s);
    const char* variable = "LEAFCAST_TEST_HELPER";
    const auto helper = [&](const QString& named) {
        qputenv(variable, QFile::encodeName(named));
        // A program of this name does lie beside this one.
        return ResourceFolder::helperProgram(QFileInfo(own).fileName(), variable);
    };
    EXPECT_EQ(helper(u"/bin/sh"_s), u"/bin/sh"_s);
    EXPECT_EQ(helper({}), own);
    const QString text = writeTestFile(folder.filePath(u"text"_s), "");
    for (const QString& none : { folder.path(), folder.filePath(u"missing"_s), text })
        EXPECT_EQ(helper(none), QString());
    qunsetenv(variable);
}
