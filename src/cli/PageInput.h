// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PublishOptions.h"
#include "cli/PublishReport.h"
#include "links/FlashOutline.h"
#include "links/FlashPagesAnnotations.h"
#include "pages/FlashPageSource.h"

#include <memory>

namespace leafcast {

/// What a book is made of, from a PDF or from images.
struct PageInput {
    std::shared_ptr<FlashPageSource> pageSource;
    std::shared_ptr<FlashPagesAnnotations>
        links; // none when they were not asked for, or can't be read
    std::shared_ptr<FlashOutline> outline;
    QString title; // the document's own, else the file's name; plain text
    int pageWidth = 0; // of the first page, in points, truncated; 0 when unknown
    int pageHeight = 0;
};

/// Reads the input, showing progress. What went wrong with single pages goes into the report.
/// Throws CommandFailure for an input that can't be read, and when the user interrupts.
PageInput readPages(const PublishOptions& options, PublishReport& report);

} // namespace leafcast
