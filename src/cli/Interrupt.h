// SPDX-License-Identifier: MIT
#pragma once

/// Ctrl-C, the polite kill and a terminal that closes: the first one asks the running command to
/// stop, a second one ends the program.
namespace leafcast::Interrupt {

void listen();
bool isRequested();

} // namespace leafcast::Interrupt
