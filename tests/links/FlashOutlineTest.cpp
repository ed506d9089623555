// SPDX-License-Identifier: MIT
#include "links/FlashOutline.h"

#include "base/NamedException.h"
#include "base/XMLParser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

XMLElement parsed(const QByteArray& text)
{
    return XMLParser().parse(text, XMLParser::Mode::Strict).value();
}

QString nameOfThrown(const std::function<void()>& read)
{
    try {
        read();
    } catch (const NamedException& exception) {
        return exception.name() + u": "_s + exception.reason();
    }
    return u"nothing"_s;
}

const QByteArray twoLevels = "<ols><o><c>Trees &amp; leaves</c><p>3</p><l>1</l><ci>"
                             "<o><c>Oak</c><p>5</p><l>2</l><ci/></o>"
                             "<o><c>Ash</c><p>4</p><l>2</l><ci/></o></ci></o>"
                             "<o><c></c><p>0</p><l>1</l><ci/></o></ols>";

} // namespace

TEST(FlashOutline, ReadsAndWritesItsXMLByteForByte)
{
    FlashOutline outline;
    outline.items().push_back(std::make_shared<FlashOutlineItem>());
    outline.loadFromXMLNode(parsed(twoLevels));
    EXPECT_EQ(
        outline.outlineAsXMLNode().toUtf8(), QByteArray(twoLevels).replace("<c></c>", "<c/>"));
    EXPECT_EQ(FlashOutline().outlineAsXMLNode().toUtf8(), "<ols/>");

    ASSERT_EQ(outline.items().size(), 2u);
    const FlashOutlineItem& first = *outline.items().front();
    EXPECT_EQ(first.caption(), u"Trees & leaves"_s);
    EXPECT_EQ(first.parent(), nullptr);
    ASSERT_EQ(first.childItems().size(), 2u);
    EXPECT_EQ(first.childItems().front()->pageIndex(), 5);
    EXPECT_EQ(first.childItems().front()->level(), 2);
    EXPECT_EQ(first.childItems().front()->parent(), &first);
}

TEST(FlashOutline, ReadsWhatIsThereAndNothingElse)
{
    FlashOutline outline;
    outline.loadFromXMLNode(parsed("<ols><x/><o><p>seven</p><l>9</l><l>2</l><o/>"
                                   "<ci><x/><o><c>in</c></o></ci><ci><o/></ci></o></ols>"));
    ASSERT_EQ(outline.items().size(), 1u);
    const FlashOutlineItem& item = *outline.items().front();
    EXPECT_TRUE(item.caption().isNull());
    EXPECT_EQ(item.pageIndex(), 0);
    EXPECT_EQ(item.level(), 9);
    ASSERT_EQ(item.childItems().size(), 2u);
    EXPECT_EQ(item.childItems().front()->caption(), u"in"_s);
}

TEST(FlashOutline, RefusesOtherElementsByName)
{
    FlashOutline outline;
    FlashOutlineItem item;
    EXPECT_EQ(nameOfThrown([&] { outline.loadFromXMLNode(XMLElement(u"o"_s)); }),
        u"ERROR_INIT_OUTLINES: Not a flash outline"_s);
    EXPECT_EQ(nameOfThrown([&] { item.loadItemFromXMLNode(XMLElement(u"ols"_s)); }),
        u"ERROR_INIT_OUTLINE_ITEM: Not a flash outline item"_s);
}

TEST(FlashOutline, NestsDeeperThanTheStack)
{
    constexpr int depth = 50'000;
    XMLElement root(u"ols"_s);
    XMLElement entry = root.addChild(u"o"_s);
    for (int i = 1; i < depth; ++i)
        entry = entry.addChild(u"ci"_s).addChild(u"o"_s);

    FlashOutline outline;
    outline.loadFromXMLNode(root);
    int found = 0;
    for (const FlashOutlineItem* item = outline.items().front().get(); item; ++found)
        item = item->childItems().empty() ? nullptr : item->childItems().front().get();
    EXPECT_EQ(found, depth);
    EXPECT_EQ(outline.outlineAsXMLNode().children(u"o"_s).size(), 1u);
}

TEST(FlashOutlineItem, AddsAndRemovesChildrenWithoutTouchingThem)
{
    FlashOutlineItem item;
    const auto child = std::make_shared<FlashOutlineItem>();
    item.addChild(child);
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_EQ(child->level(), 0);
    item.removeChild(child);
    EXPECT_TRUE(item.childItems().empty());
}

TEST(FlashOutlineItem, AnEntryThatOutlivesItsParentForgetsIt)
{
    auto item = std::make_shared<FlashOutlineItem>();
    item->loadItemFromXMLNode(parsed("<o><ci><o><ci><o/></ci></o></ci></o>"));
    const auto child = item->childItems().front();
    const auto grandchild = child->childItems().front();
    item.reset();
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_EQ(grandchild->parent(), child.get());
}
