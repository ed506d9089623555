// SPDX-License-Identifier: MIT
#pragma once

#include "base/BackgroundQueue.h"
#include "pdf/PDFDocument.h"

#include <functional>
#include <memory>

namespace leafcast {

/// Opens the PDF that is named in a field, on a thread of its own, to learn how many pages it has
/// and whether it is locked. Only the latest look is told.
class PDFGlance {
public:
    struct Sight {
        int pageCount = 0; // 0: it can't be opened
        PDFOpenError error = PDFOpenError::None;
    };
    using Seen = std::function<void(const Sight&)>;

    explicit PDFGlance(Seen seen)
        : iSeen(std::move(seen))
    {
    }

    void look(const QString& path);
    /// What is under way is not told.
    void forget() { ++iLatest; }

private:
    Seen iSeen;
    int iLatest = 0;
    BackgroundQueue iQueue;
};

} // namespace leafcast
