// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitCode.h"

#include <CLI/CLI.hpp>
#include <functional>

namespace leafcast {

/// What the chosen subcommand does once the command line is parsed.
using Action = std::function<ExitCode()>;

/// Each registers one subcommand; when it is the one that was typed, its action is left in chosen.
void addPublishCommand(CLI::App& program, Action& chosen);
void addServeCommand(CLI::App& program, Action& chosen);
void addInspectCommand(CLI::App& program, Action& chosen);
void addTemplatesCommand(CLI::App& program, Action& chosen);
void addStylesCommand(CLI::App& program, Action& chosen);
void addSettingsCommand(CLI::App& program, Action& chosen);

/// Hides from the parser that an argument begins with "[", which it would take for a list.
/// fromArgument() undoes it.
std::vector<std::string> protectedArguments(int argc, char** argv);
/// What the parser says of arguments, without what protects them.
QString withoutGuards(QString text);
/// A text as it was typed. Throws CommandFailure for one that is not UTF-8.
QString fromArgument(const std::string& argument);
/// A path as it was typed; one that begins with ":" is a file's all the same.
QString pathFromArgument(const std::string& argument);

} // namespace leafcast
