// SPDX-License-Identifier: MIT
#pragma once

#include "pdf/PDFDocument.h"

#include <memory>
#include <vector>

namespace leafcast {

class PDFServicePool;

/// Reads the text of many pages of one document with several workers of the PDF service. Pages come
/// in the order asked for, and only a few are held at a time. One thread; destruction ends the
/// workers.
class PDFTextReader {
public:
    /// Page indices are from 0. workers 0: one a processor core.
    PDFTextReader(const PDFDocument::Source& source, std::vector<int> pageIndices, int workers = 0);
    PDFTextReader(const PDFTextReader&) = delete;
    PDFTextReader& operator=(const PDFTextReader&) = delete;
    ~PDFTextReader();

    bool atEnd() const { return iNext == iPageIndices.size(); }
    /// The text of the next page; empty, with one log line, when it can't be read, and cut, with
    /// one too, when it is far more than people could read on a page. Empty at the end.
    std::vector<PDFTextLine> next();

private:
    void logLoss(const QString& what) const;

    const QString iPath;
    const std::vector<int> iPageIndices;
    size_t iNext = 0;
    std::unique_ptr<PDFServicePool> iPool;
};

} // namespace leafcast
