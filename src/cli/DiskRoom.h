// SPDX-License-Identifier: MIT
#pragma once

namespace leafcast {

class FlashBookOutput;
class OutputPlace;

/// Refuses, with a CommandFailure, when the disk has too little room for the writer's pages, beside
/// those they replace, and for the archive where one is wanted.
void requireRoom(const OutputPlace& place, const FlashBookOutput& writer);

} // namespace leafcast
