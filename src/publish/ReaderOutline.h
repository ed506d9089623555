// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutline.h"
#include "pages/FlashPageSource.h"
#include "publish/ReaderData.h"

#include <unordered_map>

namespace leafcast {

/// Where in the book each page stands.
class BookPlaces {
public:
    explicit BookPlaces(const FlashPageSource::Pages& pages);

    /// Position from 1 of the page of that number; 0 when it is not in the book.
    int placeOf(int pageNumber) const;

private:
    std::unordered_map<int, int> iPlaces;
};

/// The outline with its targets' places. Entries that lead out of the book are kept, with place 0.
std::vector<ReaderOutlineItem> readerOutline(
    const FlashOutline::Items& items, const BookPlaces& places);

} // namespace leafcast
