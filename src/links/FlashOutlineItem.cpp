// SPDX-License-Identifier: MIT
#include "links/FlashOutlineItem.h"

#include "base/IntegerText.h"
#include "base/NamedException.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace leafcast {

// Outlines come from files, and a file can nest as deep as it likes. So everything that walks a
// tree here keeps a list of what is left to do instead of calling itself.

namespace {

    void appendText(XMLElement& node, const QString& name, const QString& text)
    {
        node.addChild(name).setStringValue(text);
    }

    std::optional<QString> textOfFirst(const XMLElement& node, const QString& name)
    {
        const auto found = node.selectNodes(u"./%1"_s.arg(name));
        return found.empty() ? std::nullopt : std::optional(found.front().stringValue());
    }

} // namespace

FlashOutlineItem::~FlashOutlineItem()
{
    Items left = std::exchange(iChildItems, {});
    for (const auto& child : left)
        if (child && child->iParent == this)
            child->iParent = nullptr;
    while (!left.empty()) {
        const std::shared_ptr<FlashOutlineItem> item = std::move(left.back());
        left.pop_back();
        if (!item || item.use_count() > 1)
            continue;
        for (auto& child : std::exchange(item->iChildItems, {})) {
            if (child && child->iParent == item.get())
                child->iParent = nullptr;
            left.push_back(std::move(child));
        }
    }
}

void FlashOutlineItem::addChild(const std::shared_ptr<FlashOutlineItem>& child)
{
    iChildItems.push_back(child);
}

void FlashOutlineItem::removeChild(const std::shared_ptr<FlashOutlineItem>& child)
{
    std::erase(iChildItems, child);
}

XMLElement FlashOutlineItem::outlineItemAsXMLNode() const
{
    XMLElement node(u"o"_s);
    writeToXMLNode(node);
    return node;
}

void FlashOutlineItem::writeToXMLNode(const XMLElement& itemNode) const
{
    std::vector<std::pair<const FlashOutlineItem*, XMLElement>> left{ { this, itemNode } };
    while (!left.empty()) {
        auto [item, node] = std::move(left.back());
        left.pop_back();
        appendText(node, u"c"_s, item->iCaption); // without one deliberately empty, not "(null)"
        appendText(node, u"p"_s, QString::number(item->iPageIndex));
        appendText(node, u"l"_s, QString::number(item->iLevel));
        XMLElement children = node.addChild(u"ci"_s);
        for (const auto& child : item->iChildItems)
            left.emplace_back(child.get(), children.addChild(u"o"_s));
    }
}

void FlashOutlineItem::loadItemFromXMLNode(const XMLElement& itemNode)
{
    if (itemNode.name() != u"o"_s)
        throw NamedException(u"ERROR_INIT_OUTLINE_ITEM"_s, u"Not a flash outline item"_s);
    std::vector<std::pair<FlashOutlineItem*, XMLElement>> left{ { this, itemNode } };
    while (!left.empty()) {
        const auto [item, node] = std::move(left.back());
        left.pop_back();
        item->readFields(node);
        item->iChildItems.clear();
        for (const XMLElement& childNode : node.selectNodes(u"./ci/o"_s)) {
            const auto child = std::make_shared<FlashOutlineItem>();
            child->setParent(item);
            item->addChild(child);
            left.emplace_back(child.get(), childNode);
        }
    }
}

void FlashOutlineItem::readFields(const XMLElement& node)
{
    if (const auto caption = textOfFirst(node, u"c"_s))
        iCaption = *caption;
    if (const auto pageIndex = textOfFirst(node, u"p"_s))
        iPageIndex = integerValue(*pageIndex);
    if (const auto level = textOfFirst(node, u"l"_s))
        iLevel = integerValue(*level);
}

} // namespace leafcast
