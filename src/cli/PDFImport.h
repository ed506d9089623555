// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PageInput.h"

namespace leafcast {

/// Runs the import operation of the opened document on a worker thread, with a progress bar; fills
/// the page source, the links and the outline. Throws CommandFailure when the user interrupts, or
/// when no page can be imported.
PageInput importPDF(const PublishOptions& options, const std::shared_ptr<PDFDocument>& document);

} // namespace leafcast
