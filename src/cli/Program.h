// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"

#include <optional>

namespace leafcast {

/// What holds for every command: the program's name, its help, how arguments are read.
void describeProgram(CLI::App& program);

void addCommands(CLI::App& program, Action& chosen);

/// The status to end with when no command is to run, because help was asked for or the usage was
/// wrong; said so already.
std::optional<int> parseArguments(CLI::App& program, int argc, char** argv);

} // namespace leafcast
