// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

using namespace Qt::StringLiterals;

namespace leafcast {

using LibraryCommands = CommandLineTest;

TEST_F(LibraryCommands, ListTemplatesAndStyles)
{
    EXPECT_TRUE(run({ u"templates"_s }).output.split('\n').contains("float"));
    EXPECT_TRUE(run({ u"styles"_s, u"float"_s }).output.split('\n').contains("Wall-line"));
    EXPECT_EQ(run({ u"styles"_s, u"glider"_s }).status, 2);
}

TEST_F(LibraryCommands, SettingsGoOutAndComeBack)
{
    EXPECT_EQ(run({ u"settings"_s, u"export"_s, u"mine"_s, u"--set"_s, u"bookTitle=a=b"_s }).output,
        "mine.txt\n");
    EXPECT_TRUE(readTestFile(at(u"mine.txt"_s)).contains("\n\rbookTitle=a=b"));

    const Outcome outcome
        = run({ u"settings"_s, u"import"_s, u"mine.txt"_s, u"--output"_s, u"again.txt"_s });
    EXPECT_EQ(outcome.output, "bookTitle:  -> a=b\n");
    EXPECT_EQ(readTestFile(at(u"again.txt"_s)), readTestFile(at(u"mine.txt"_s)));
    writeTestFile(at(u"colour.txt"_s), "linkColor=0x000001\n");
    EXPECT_EQ(
        run({ u"settings"_s, u"import"_s, u"colour.txt"_s, u"--settings"_s, u"mine.txt"_s }).output,
        "linkColor: 0x2f7d4f -> 0x000001\n");
    EXPECT_TRUE(run({ u"settings"_s, u"show"_s, u"--settings"_s, u"mine.txt"_s })
                    .output.contains("bookTitle=a=b\n"));
}

TEST_F(LibraryCommands, VersionAndHelpGoToStandardOutput)
{
    const Outcome version = run({ u"--version"_s });
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.startsWith("leafcast "));
    EXPECT_TRUE(run({ u"publish"_s, u"--help"_s }).output.contains("--quality"));
    EXPECT_EQ(run({}).status, 2);
    EXPECT_EQ(run({ u"publish"_s, u"a"_s, u"b"_s, u"--quality"_s, u"9"_s }).status, 2);
}

} // namespace leafcast
