// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourceCopy.h"

namespace leafcast {

FlashPageSourceCopy::FlashPageSourceCopy(std::shared_ptr<const FlashPageSource> source)
    : iSource(std::move(source))
{
    pages() = iSource->pages();
    normalPages() = iSource->normalPages();
    zoomedPages() = iSource->zoomedPages();
    thumbPages() = iSource->thumbPages();
    setSourceFile(iSource->sourceFile());
}

} // namespace leafcast
