// SPDX-License-Identifier: MIT
#include "links/FlashOutlinePDF.h"

#include "base/Log.h"

namespace leafcast {

namespace {

    std::shared_ptr<FlashOutlineItem> newItem(const PDFOutline& outline, qint32 level)
    {
        auto item = std::make_shared<FlashOutlineItem>();
        item->setCaption(outline.label);
        item->setPageIndex(outline.destination.pageIndex + 1);
        item->setLevel(level);
        FlashOutlinePDF::addOutelineToItems(*item, outline, level);
        return item;
    }

} // namespace

void FlashOutlinePDF::loadOutlineFromPDF(const PDFDocument* document)
{
    const auto root = document ? document->outlineRoot() : std::nullopt;
    if (!root)
        return;
    for (const PDFOutline& child : root->children) {
        LOG_DEBUG("FlashOutlinePDF", child.label);
        items().push_back(newItem(child, 1));
    }
}

void FlashOutlinePDF::addOutelineToItems(
    FlashOutlineItem& parent, const PDFOutline& outline, qint32 parentLevel)
{
    for (const PDFOutline& child : outline.children) {
        const auto item = newItem(child, parentLevel + 1);
        item->setParent(&parent);
        parent.addChild(item);
    }
}

} // namespace leafcast
