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

} // namespace

TEST(FlashOutline, ReadsWhatIsThereAndWritesItByteForByte)
{
    const std::pair<QByteArray, QByteArray> cases[] = {
        { "<o><c>A &amp; B</c><p>3</p><l>1</l><ci><o><c></c><p>5</p><l>2</l><ci/></o></ci></o>",
            "<o><c>A &amp; B</c><p>3</p><l>1</l><ci><o><c/><p>5</p><l>2</l><ci/></o></ci></o>" },
        { "<x/><o><p>seven</p><l>9</l><l>2</l><o/><ci><x/><o><c>in</c></o></ci></o><o/>",
            "<o><c/><p>0</p><l>9</l><ci><o><c>in</c><p>0</p><l>0</l><ci/></o></ci></o>"
            "<o><c/><p>0</p><l>0</l><ci/></o>" },
    };
    for (const auto& [read, written] : cases) {
        FlashOutline outline;
        outline.items().push_back(std::make_shared<FlashOutlineItem>());
        outline.loadFromXMLNode(parsed("<ols>" + read + "</ols>"));
        EXPECT_EQ(outline.outlineAsXMLNode().toUtf8(), "<ols>" + written + "</ols>");
    }
}

TEST(FlashOutline, RefusesOtherElementsByName)
{
    EXPECT_THROW(FlashOutline().loadFromXMLNode(XMLElement(u"o"_s)), NamedException);
    EXPECT_THROW(FlashOutlineItem().loadItemFromXMLNode(XMLElement(u"ols"_s)), NamedException);
}

TEST(FlashOutline, NestsDeeperThanTheStack)
{
    XMLElement root(u"ols"_s);
    XMLElement entry = root.addChild(u"o"_s);
    for (int i = 1; i < 50'000; ++i)
        entry = entry.addChild(u"ci"_s).addChild(u"o"_s);
    FlashOutline outline;
    outline.loadFromXMLNode(root);
    EXPECT_EQ(outline.outlineAsXMLNode().toUtf8().count("<o>"), 50'000);
}

TEST(FlashOutlineItem, AnEntryThatOutlivesItsParentForgetsIt)
{
    auto item = std::make_shared<FlashOutlineItem>();
    item->loadItemFromXMLNode(parsed("<o><ci><o><ci><o/></ci></o></ci></o>"));
    const auto child = item->childItems().front();
    EXPECT_EQ(child->parent(), item.get());
    item.reset();
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_EQ(child->childItems().front()->parent(), child.get());
}
