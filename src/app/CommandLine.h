// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <QStringList>

namespace leafcast {

/// What leafcast-desktop is called with: files to make a book of. Options of the toolkit are the
/// application object's business, which takes them away.
class CommandLine {
public:
    CommandLine();

    const CLI::App& parser() const { return iParser; }
    /// The status to end with when help or version were asked for, which needs no display; said so
    /// already.
    std::optional<int> answerWithoutWindows(int argc, char** argv);
    /// The same for wrong usage, once the options of the toolkit are taken away. The files are
    /// known then.
    std::optional<int> parse(int argc, char** argv);
    /// Absolute paths.
    QStringList files() const;

private:
    CLI::App iParser;
    std::vector<std::string> iFiles;
};

} // namespace leafcast
