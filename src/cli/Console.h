// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Data goes to standard output, everything said to people to standard error.
namespace leafcast::Console {

/// True when standard error is a terminal that understands control sequences.
bool isTerminal();
/// isTerminal(), and NO_COLOR is not set.
bool usesColour();
/// Columns of the terminal; 80 when unknown.
int width();

void writeData(const QByteArray& bytes);
void writeLine(const QString& text);
/// "leafcast: text" on standard error.
void say(const QString& text);
void sayError(const QString& sentence);

} // namespace leafcast::Console
