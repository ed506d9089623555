// SPDX-License-Identifier: MIT
#pragma once

#include "cli/OutputPlace.h"
#include "cli/PageInput.h"
#include "cli/PublishOptions.h"
#include "cli/PublishReport.h"

#include <memory>

namespace leafcast {

/// What a book is written from.
struct BookParts {
    const PublishOptions& options;
    const OutputPlace& place;
    const PageInput& input;
    const std::shared_ptr<FlashTemplate>& flashTemplate;
};

/// Writes the book, looks at what the best-effort writer left, and packs it where that is wanted;
/// fills the report. Throws
/// CommandFailure before anything is written when it can't be, and when the user interrupts.
void writeBook(const BookParts& parts, PublishReport& report);

} // namespace leafcast
