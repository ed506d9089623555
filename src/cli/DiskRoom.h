// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace leafcast {

class FlashBookOutput;
class OutputPlace;

/// The path itself, or the nearest above it that exists.
QString nearestExisting(const QString& absolutePath);

/// Refuses, with a CommandFailure, when the disk has too little room for the writer's pages, beside
/// those they replace, and for the archive where one is wanted.
void requireRoom(const OutputPlace& place, const FlashBookOutput& writer);

} // namespace leafcast
