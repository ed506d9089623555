// SPDX-License-Identifier: MIT
#include "publish/ReaderOutline.h"

namespace leafcast {

BookPlaces::BookPlaces(const FlashPageSource::Pages& pages)
{
    int place = 0;
    for (const auto& page : pages)
        if (page)
            iPlaces.emplace(page->pageIndex(), ++place);
}

int BookPlaces::placeOf(int pageNumber) const
{
    const auto found = iPlaces.find(pageNumber);
    return found == iPlaces.end() ? 0 : found->second;
}

std::vector<ReaderOutlineItem> readerOutline(
    const FlashOutline::Items& items, const BookPlaces& places)
{
    std::vector<ReaderOutlineItem> outline;
    for (const auto& item : items)
        if (item)
            outline.push_back({ item->caption(), item->pageIndex(),
                places.placeOf(item->pageIndex()), readerOutline(item->childItems(), places) });
    return outline;
}

} // namespace leafcast
