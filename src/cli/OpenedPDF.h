// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"

#include <memory>

namespace leafcast {

/// The opened document. Throws CommandFailure with a sentence that names the file and the reason.
std::shared_ptr<PDFDocument> openPDF(const PDFDocument::Source& source);

} // namespace leafcast
