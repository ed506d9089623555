// SPDX-License-Identifier: MIT
#pragma once

#include "base/XMLElement.h"

#include <memory>
#include <QString>
#include <vector>

namespace leafcast {

/// One entry of a book's outline and the entries below it, to any depth.
class FlashOutlineItem {
public:
    using Items = std::vector<std::shared_ptr<FlashOutlineItem>>;

    FlashOutlineItem() = default;
    ~FlashOutlineItem();
    FlashOutlineItem(const FlashOutlineItem&) = delete;
    FlashOutlineItem& operator=(const FlashOutlineItem&) = delete;

    const QString& caption() const { return iCaption; }
    void setCaption(const QString& caption) { iCaption = caption; }

    /// Number of the target page in the whole PDF, from 1; 0 without a target.
    qint32 pageIndex() const { return iPageIndex; }
    void setPageIndex(qint32 number) { iPageIndex = number; }

    /// The enclosing entry, as it was set; none for one at the top, and once that entry is
    /// destroyed. Who takes an entry out of its parent sets none, or the parent may go without
    /// telling it.
    FlashOutlineItem* parent() const { return iParent; }
    void setParent(FlashOutlineItem* parent) { iParent = parent; }

    Items& childItems() { return iChildItems; }
    const Items& childItems() const { return iChildItems; }
    void setChildItems(const Items& items) { iChildItems = items; }

    /// Both leave the child's parent and level as they are.
    void addChild(const std::shared_ptr<FlashOutlineItem>& child);
    void removeChild(const std::shared_ptr<FlashOutlineItem>& child);

    /// 1 at the top.
    qint32 level() const { return iLevel; }
    void setLevel(qint32 level) { iLevel = level; }

    /// A new element "o".
    XMLElement outlineItemAsXMLNode() const;
    /// Writes the entry into an empty element "o".
    void writeToXMLNode(const XMLElement& node) const;
    /// Throws NamedException "ERROR_INIT_OUTLINE_ITEM" for any element but "o". What the element
    /// lacks stays as it is, but the children are replaced.
    void loadItemFromXMLNode(const XMLElement& node);

private:
    void readFields(const XMLElement& node);

    QString iCaption;
    qint32 iPageIndex = 0;
    FlashOutlineItem* iParent = nullptr;
    Items iChildItems;
    qint32 iLevel = 0;
};

} // namespace leafcast
