// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Ctrl-C, the polite kill and a terminal that closes: the first one asks the running command to
/// stop, a second one ends the program. One that was ignored, as nohup does, stays so.
namespace leafcast::Interrupt {

void listen();
bool isRequested();
/// Throws CommandFailure, "interrupted; CONSEQUENCE", when it is.
void endIfRequested(const QString& consequence);

} // namespace leafcast::Interrupt
