// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>

namespace leafcast {

namespace {

    constexpr int wrongUsage = 2;

    /// From the back, as the parser takes them. One that begins with "[" would be a list to it.
    std::vector<std::string> argumentsForParser(int argc, char** argv)
    {
        std::vector<std::string> arguments(argv + 1, argv + argc);
        for (std::string& argument : arguments)
            if (argument.starts_with('['))
                argument.insert(0, "./");
        std::ranges::reverse(arguments);
        return arguments;
    }

} // namespace

CommandLine::CommandLine()
{
    iParser.name("leafcast-desktop");
    iParser.description("Turns a PDF into a page-turning digital book, beside a live preview.");
    iParser.set_version_flag("-v,--version", "leafcast-desktop " LEAFCAST_VERSION);
    iParser.add_option("FILE", iFiles, "A PDF, or pictures, to make a book of")->type_name("");
}

std::optional<int> CommandLine::answerWithoutWindows(int argc, char** argv)
try {
    iParser.allow_extras();
    iParser.parse(argumentsForParser(argc, argv));
    return std::nullopt;
} catch (const CLI::Success& helpOrVersion) {
    return iParser.exit(helpOrVersion);
} catch (const CLI::ParseError&) {
    return std::nullopt;
}

std::optional<int> CommandLine::parse(int argc, char** argv)
try {
    iParser.allow_extras(false);
    iParser.parse(argumentsForParser(argc, argv));
    return std::nullopt;
} catch (const CLI::ParseError& error) {
    iParser.exit(error);
    return wrongUsage;
}

QStringList CommandLine::files() const
{
    QStringList files;
    for (const std::string& file : iFiles)
        files.append(QFileInfo(QFile::decodeName(file.c_str())).absoluteFilePath());
    return files;
}

} // namespace leafcast
