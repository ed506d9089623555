// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"

#include <memory>
#include <QString>

namespace leafcast {

/// How a PDF is opened and drawn, beside what the user chooses of it.
struct PDFImportOptions {
    QString password{};
    PDFServiceLimits limits{};
    int workers = 0; // of the PDF service; 0: one a processor core
    std::shared_ptr<PDFDocument> opened{}; // by the caller already; else the path is opened
};

} // namespace leafcast
