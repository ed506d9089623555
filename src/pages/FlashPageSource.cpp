// SPDX-License-Identifier: MIT
#include "pages/FlashPageSource.h"

#include "base/Log.h"
#include "pages/PageRange.h"

using namespace Qt::StringLiterals;

namespace leafcast {

std::vector<qint32> FlashPageSource::parsePageRange(const QString& range, qint32 totalPage)
{
    std::vector<qint32> numbers = PageRange::parse(range, totalPage);
    if (PageRange::isAll(range) || !Log::isEnabled("FlashPageSource", LogLevel::Debug))
        return numbers;
    for (size_t i = 0; i < numbers.size(); ++i)
        LOG_DEBUG("FlashPageSource", u"range[%1]=%2"_s.arg(i).arg(numbers[i]));
    return numbers;
}

void FlashPageSource::clearPages()
{
    iPages.clear();
    iNormalPages.clear();
    iZoomedPages.clear();
    iThumbPages.clear();
}

std::shared_ptr<FlashPage> FlashPageSource::pageAtPosition(quint32 position) const
{
    return position < iPages.size() ? iPages[position] : nullptr;
}

std::unordered_set<qint32> FlashPageSource::numbersOfNormalPages() const
{
    std::unordered_set<qint32> numbers;
    for (const auto& page : iNormalPages)
        if (page)
            numbers.insert(page->pageIndex());
    return numbers;
}

} // namespace leafcast
