// SPDX-License-Identifier: MIT
#pragma once

#include "links/FlashOutlineItem.h"

namespace leafcast {

/// A book's outline: its top-level entries, in order.
class FlashOutline {
public:
    using Items = FlashOutlineItem::Items;

    virtual ~FlashOutline() = default;

    Items& items() { return iItems; }
    const Items& items() const { return iItems; }
    void setItems(const Items& items) { iItems = items; }

    /// A new element "ols".
    XMLElement outlineAsXMLNode() const;
    /// Replaces the entries. Throws NamedException "ERROR_INIT_OUTLINES" for any element but "ols".
    void loadFromXMLNode(const XMLElement& node);

private:
    Items iItems;
};

} // namespace leafcast
