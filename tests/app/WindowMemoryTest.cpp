// SPDX-License-Identifier: MIT
#include "app/WindowMemory.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <QMainWindow>
#include <QSplitter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace leafcast {

class WindowMemoryTest : public testing::Test {
protected:
    QString file() const { return folder.filePath(u"windows.ini"_s); }
    QString pdf(int number) const
    {
        return writeTestFile(folder.filePath(u"%1.pdf"_s.arg(number)), "x");
    }

    QTemporaryDir folder;
};

TEST_F(WindowMemoryTest, GivesAWindowItsSizeBack)
{
    QMainWindow window;
    QSplitter splitter;
    EXPECT_FALSE(WindowMemory(file()).restore(window, splitter));
    window.resize(640, 480);
    WindowMemory(file()).save(window, splitter);
    QMainWindow later;
    EXPECT_TRUE(WindowMemory(file()).restore(later, splitter));
    EXPECT_EQ(later.size(), QSize(640, 480));
}

TEST_F(WindowMemoryTest, NamesTheLastFilesThatAreStillThere)
{
    WindowMemory memory(file());
    for (int number = 1; number <= 12; ++number)
        memory.addRecentFile(pdf(number));
    memory.addRecentFile(pdf(5));
    QStringList files = WindowMemory(file()).recentFiles();
    EXPECT_EQ(files.size(), 10);
    EXPECT_EQ(files.mid(0, 2), QStringList({ pdf(5), pdf(12) }));
    EXPECT_EQ(files.count(pdf(5)), 1);
    QFile::remove(pdf(12));
    EXPECT_FALSE(memory.recentFiles().contains(folder.filePath(u"12.pdf"_s)));
    memory.clearRecentFiles();
    EXPECT_TRUE(WindowMemory(file()).recentFiles().isEmpty());
}

} // namespace leafcast
