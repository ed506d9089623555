// SPDX-License-Identifier: MIT
#include "base/XMLElement.h"
#include "base/XMLParser.h"

#include <gtest/gtest.h>
#include <QStringConverter>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(XMLElement, WritesAttributesInTheOrderOfAddingAndEscapesText)
{
    XMLElement root(u"root"_s);
    XMLElement child = root.addChild(u"c"_s);
    child.addAttribute(u"z"_s, u"1<\"2"_s);
    child.addAttribute(u"a"_s, u"ä"_s);
    child.setStringValue(u"R&D <\u0001b>\uFFFF"_s);
    XMLElement copied(u"copied"_s);
    root.appendChild(copied);

    EXPECT_EQ(root.toUtf8().toStdString(),
        "<root><c z=\"1&lt;&quot;2\" a=\"\xC3\xA4\">R&amp;D &lt;b&gt;</c><copied/></root>");
}

TEST(XMLElement, FindsChildrenByNameAndPath)
{
    const auto root = XMLParser().parse(
        "<ols><o><c>x</c><ci><o/><o/></ci></o><p/><o>y</o></ols>", XMLParser::Mode::Strict);
    ASSERT_TRUE(root);
    EXPECT_EQ(root->children(u"o"_s).size(), 2u);
    EXPECT_EQ(root->firstChild(u"o"_s)->selectNodes(u"./ci/o"_s).size(), 2u);
    EXPECT_EQ(root->selectNodes(u"./o"_s).at(1).stringValue(), u"y"_s);
    EXPECT_FALSE(root->firstChild(u"missing"_s));
    EXPECT_FALSE(root->attribute(u"missing"_s));
    EXPECT_TRUE(root->selectNodes(u"not ( a path"_s).empty());
}

TEST(XMLElement, AHandleKeepsItsTreeAlive)
{
    std::optional<XMLElement> child;
    {
        XMLElement root(u"root"_s);
        child = root.addChild(u"child"_s);
        child->setStringValue(u"text"_s);
    }
    EXPECT_EQ(child->stringValue(), u"text"_s);
}

TEST(XMLParser, KeepsWhiteSpaceAndCDATA)
{
    const auto root = XMLParser().parse("<a> <![CDATA[<b> & c]]>\n</a>", XMLParser::Mode::Strict);
    EXPECT_EQ(root->stringValue(), u" <b> & c\n"_s);
}

TEST(XMLParser, ReportsTheLineOfAnErrorAndTidiesIt)
{
    const QByteArray broken = "<a>\n<b>R&D &amp; &#65;</c>\n<d>x</d></a>";
    XMLParser strict;
    EXPECT_FALSE(strict.parse(broken, XMLParser::Mode::Strict));
    EXPECT_EQ(strict.error().line, 2);
    EXPECT_FALSE(strict.error().message.isEmpty());

    const auto root = XMLParser().parse(broken, XMLParser::Mode::Tidying);
    ASSERT_TRUE(root);
    EXPECT_TRUE(root->stringValue().contains(u"R&D & A"_s)) << root->toUtf8().toStdString();
    EXPECT_FALSE(root->selectNodes(u"//d"_s).empty());
}

TEST(XMLParser, TidyingLeavesAmpersandsAloneThatNeedNoEscape)
{
    const auto root = XMLParser().parse(
        "<?edit a&b?><a><!-- R&D\n& --><b><![CDATA[x=1&y=2\n&]]>&</b><!-- & --></a>",
        XMLParser::Mode::Tidying);
    ASSERT_TRUE(root);
    EXPECT_EQ(root->toUtf8(), "<a><!-- R&D\n& --><b><![CDATA[x=1&y=2\n&]]>&amp;</b><!-- & --></a>");
}

TEST(XMLParser, TidiesWideEncodings)
{
    const QString text = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>R&D Größe 測</a>"_s;
    for (const auto encoding : { QStringConverter::Utf16LE, QStringConverter::Utf16BE }) {
        const QByteArray bytes = QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(text);
        const auto root = XMLParser().parse(bytes, XMLParser::Mode::Tidying);
        ASSERT_TRUE(root);
        EXPECT_EQ(root->stringValue(), u"R&D Größe 測"_s);
    }
    const auto marked
        = XMLParser().parse("\xEF\xBB\xBF<a>R&D \xC3\xA9</a>", XMLParser::Mode::Tidying);
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->stringValue(), u"R&D é"_s);
}

TEST(XMLParser, RefusesWhatIsNoXMLAndEntitiesOfItsOwn)
{
    XMLParser parser;
    EXPECT_FALSE(parser.parse("", XMLParser::Mode::Tidying));
    EXPECT_FALSE(parser.parse("no xml at all", XMLParser::Mode::Tidying));
    const QByteArray external
        = "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>";
    EXPECT_FALSE(parser.parse(external, XMLParser::Mode::Strict));
    EXPECT_FALSE(parser.parse(external, XMLParser::Mode::Tidying));
}
