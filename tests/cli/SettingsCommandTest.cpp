// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

using namespace Qt::StringLiterals;

namespace leafcast {

using LibraryCommands = CommandLineTest;

TEST_F(LibraryCommands, ListTemplatesAndStyles)
{
    EXPECT_TRUE(run("templates").output.split('\n').contains("float"));
    EXPECT_TRUE(run("styles float").output.split('\n').contains("Wall-line"));
    EXPECT_EQ(run("styles glider").status, 2);
}

TEST_F(LibraryCommands, SettingsGoOutAndComeBack)
{
    EXPECT_EQ(run("settings export mine --set bookTitle=a=b").output, "mine.txt\n");
    EXPECT_TRUE(content("mine.txt").contains("\n\rbookTitle=a=b"));

    const Outcome outcome = run("settings import mine.txt --output again.txt");
    EXPECT_EQ(outcome.output, "bookTitle:  -> a=b\n");
    EXPECT_EQ(content("again.txt"), content("mine.txt"));
    writeTestFile(at(u"colour.txt"_s), "linkColor=0x000001\n");
    EXPECT_EQ(run("settings import colour.txt --settings mine.txt").output,
        "linkColor: 0x2f7d4f -> 0x000001\n");
    EXPECT_TRUE(run("settings show --settings mine.txt").output.contains("bookTitle=a=b\n"));
}

TEST_F(LibraryCommands, VersionAndHelpGoToStandardOutput)
{
    const Outcome version = run("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.startsWith("leafcast "));
    EXPECT_TRUE(run("publish --help").output.contains("--quality"));
    EXPECT_EQ(run("").status, 2);
    EXPECT_EQ(run("settings sell").errors,
        "leafcast: there is no command \"sell\"; see: leafcast settings --help\n");
    EXPECT_EQ(run("publish a b --quality 9").status, 2);
}

} // namespace leafcast
