// SPDX-License-Identifier: MIT
#include "base/NamedException.h"
#include "FuzzTarget.h"
#include "pages/PageRange.h"
#include "pages/PageRangeCheck.h"

#include <algorithm>

using namespace leafcast;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr qint32 pageCount = 1000;
    const QString range = QString::fromUtf8(fuzz::bytesOf(data, size));
    const bool isAccepted = PageRangeCheck::problem(range, pageCount).isEmpty();
    try {
        const std::vector<qint32> numbers = PageRange::parse(range, pageCount);
        fuzz::require(std::ranges::is_sorted(numbers, std::less_equal{}) || numbers.size() < 2,
            "page numbers ascend without duplicates");
        fuzz::require(std::ssize(numbers) <= PageRange::mostNumbers, "the list has an end");
        fuzz::require(!isAccepted || (!numbers.empty() && numbers.back() <= pageCount),
            "an accepted range names pages of the document");
    } catch (const NamedException&) {
        fuzz::require(!isAccepted, "an accepted range can be read");
    }
    return 0;
}
