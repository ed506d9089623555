// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourceImg.h"

#include "pages/FlashPageImage.h"

#include <algorithm>

namespace leafcast {

void FlashPageSourceImg::addImgPageFromFile(const QString& path)
{
    const auto number = static_cast<qint32>(pages().size()) + 1;
    pages().push_back(std::make_shared<FlashPageImage>(path, number));
}

void FlashPageSourceImg::generateNormalPages()
{
    auto taken = numbersOfNormalPages();
    for (const auto& page : pages()) {
        if (!taken.insert(page->pageIndex()).second)
            continue;
        const auto end = static_cast<std::ptrdiff_t>(normalPages().size());
        const auto position = std::clamp<std::ptrdiff_t>(page->pageIndex() - 1, 0, end);
        normalPages().insert(normalPages().begin() + position, page->copyPage(100, 100));
    }
}

std::shared_ptr<FlashPage> FlashPageSourceImg::getPageAtIndex(quint32 position) const
{
    return pageAtPosition(position);
}

std::shared_ptr<FlashPage> FlashPageSourceImg::getNormalPageAtIndex(qint32 pageNumber) const
{
    for (const auto& page : normalPages())
        if (page && page->pageIndex() == pageNumber)
            return page;
    return nullptr;
}

} // namespace leafcast
