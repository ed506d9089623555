// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSource.h"

namespace leafcast {

/// Pages from image files, added one by one; they are numbered in that order, from 1. The files are
/// neither checked nor read.
class FlashPageSourceImg : public FlashPageSource {
public:
    void addImgPageFromFile(const QString& path);

    /// Copies each page whose number is not there yet to the position of its number.
    void generateNormalPages() override;

    /// By position from 0; none when there is no such position.
    std::shared_ptr<FlashPage> getPageAtIndex(quint32 position) const;
    /// By page number; none when no page has it.
    std::shared_ptr<FlashPage> getNormalPageAtIndex(qint32 pageNumber) const;
};

} // namespace leafcast
