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

/// Takes the numbers of standard streams that the caller closed; the next files to be opened would
/// become those streams otherwise.
void keepStreamNumbers();

/// Throws CommandFailure for what can't be written, but not for a reader that has gone away.
void writeData(const QByteArray& bytes);
void writeLine(const QString& text);
/// The text without what a terminal would obey; names and titles come from strangers.
QString printable(QString text);
/// "leafcast: text" on standard error, printable.
void say(const QString& text);
void sayError(const QString& sentence);

} // namespace leafcast::Console
