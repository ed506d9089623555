// SPDX-License-Identifier: MIT
#pragma once

#include "cli/BookWriting.h"

namespace leafcast {

class FlashBookOutput;

/// Packs what the writer has written; fills the report. Throws CommandFailure when it can't be
/// done, and when the user interrupts; an older archive stays whole then.
void writeArchive(const ArchivePlace& place, const FlashBookOutput& writer, const BookParts& parts,
    PublishReport& report);

} // namespace leafcast
