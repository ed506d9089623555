// SPDX-License-Identifier: MIT
#include "links/FlashOutline.h"

#include "base/NamedException.h"

using namespace Qt::StringLiterals;

namespace leafcast {

XMLElement FlashOutline::outlineAsXMLNode() const
{
    XMLElement root(u"ols"_s);
    for (const auto& item : iItems)
        item->writeToXMLNode(root.addChild(u"o"_s));
    return root;
}

void FlashOutline::loadFromXMLNode(const XMLElement& node)
{
    if (node.name() != u"ols"_s)
        throw NamedException(u"ERROR_INIT_OUTLINES"_s, u"Not a flash outline"_s);
    iItems.clear();
    for (const XMLElement& itemNode : node.selectNodes(u"./o"_s)) {
        const auto item = std::make_shared<FlashOutlineItem>();
        item->loadItemFromXMLNode(itemNode);
        iItems.push_back(item);
    }
}

} // namespace leafcast
