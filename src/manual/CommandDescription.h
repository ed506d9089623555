// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <QStringList>
#include <vector>

namespace leafcast {

struct OptionDescription {
    QStringList names; // such as "-q" and "--quiet"
    QString value; // stands for its value, such as "FILE"; empty for a switch
    QString preset; // the value without the option
    QString variable; // of the environment, that sets it too
    QString text;
    bool repeatable = false;
};

struct ArgumentDescription {
    QString name;
    QString usage; // such as "INPUT... OUT_FOLDER"
    QString text;
    bool required = false;
    bool repeatable = false;
};

/// A program or one of its commands, as people are told of it: what the manual page and the
/// completions are made from.
struct CommandDescription {
    QString line; // as typed, such as "leafcast settings show"
    QString text; // one sentence
    std::vector<ArgumentDescription> arguments;
    std::vector<OptionDescription> options;
    std::vector<OptionDescription> sharedOptions; // of the program, that the command takes too
    std::vector<CommandDescription> commands;

    QString name() const { return line.section(u' ', -1); }
    /// Own ones first.
    std::vector<OptionDescription> everyOption() const;
};

/// What the parser of a program would say with --help.
CommandDescription describe(const CLI::App& program);

/// The command itself, then all below it, each before what it holds.
std::vector<const CommandDescription*> withCommandsBelow(const CommandDescription& command);

} // namespace leafcast
