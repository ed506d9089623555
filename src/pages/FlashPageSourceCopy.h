// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSource.h"

namespace leafcast {

/// The pages of another source as they are at this moment, for a writer on another thread: stopping
/// it leaves the other one alone. Keeps the other one, and so its files, alive.
class FlashPageSourceCopy : public FlashPageSource {
public:
    explicit FlashPageSourceCopy(std::shared_ptr<const FlashPageSource> source);

    std::shared_ptr<const PDFDocument> document() const override { return iSource->document(); }

private:
    std::shared_ptr<const FlashPageSource> iSource;
};

} // namespace leafcast
