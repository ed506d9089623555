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
    EXPECT_EQ(root.toUtf8().toStdString(),
        "<root><c z=\"1&lt;&quot;2\" a=\"\xC3\xA4\">R&amp;D &lt;b&gt;</c></root>");
}

TEST(XMLParser, ReportsTheLineOfAnErrorAndTidiesIt)
{
    const QByteArray broken = "<a>\n<b>R&D &amp; &#65;</c>\n<d>x</d></a>";
    XMLParser strict;
    EXPECT_FALSE(strict.parse(broken, XMLParser::Mode::Strict));
    EXPECT_EQ(strict.error().line, 2);

    const auto root = XMLParser().parse(broken, XMLParser::Mode::Tidying);
    EXPECT_TRUE(root.value().stringValue().contains(u"R&D & A"_s))
        << root.value().toUtf8().toStdString();
    EXPECT_FALSE(root.value().selectNodes(u"//d"_s).empty());
}

TEST(XMLParser, TidyingLeavesAmpersandsAloneThatNeedNoEscape)
{
    const auto root = XMLParser().parse(
        "<?edit a&b?><a><!-- R&D\n& --><b><![CDATA[x=1&y=2\n&]]>&</b><!-- & --></a>",
        XMLParser::Mode::Tidying);
    EXPECT_EQ(root.value().toUtf8(),
        "<a><!-- R&D\n& --><b><![CDATA[x=1&y=2\n&]]>&amp;</b><!-- & --></a>");
}

TEST(XMLParser, TidiesWideEncodings)
{
    const QString text = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>R&D Größe 測</a>"_s;
    const auto withMark = QStringConverter::Flag::WriteBom;
    for (const QByteArray& bytes : std::initializer_list<QByteArray>{
             QStringEncoder(QStringConverter::Utf16LE, withMark)(text),
             QStringEncoder(QStringConverter::Utf16BE, withMark)(text),
             u"\uFEFF<a>R&D Größe 測</a>"_s.toUtf8() }) {
        const auto root = XMLParser().parse(bytes, XMLParser::Mode::Tidying);
        EXPECT_EQ(root.value().stringValue(), u"R&D Größe 測"_s);
    }
}

TEST(XMLParser, RefusesWhatIsNoXMLAndEntitiesOfItsOwn)
{
    XMLParser parser;
    const QByteArray external
        = "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>";
    EXPECT_FALSE(parser.parse(external, XMLParser::Mode::Strict));
    for (const QByteArray& text : { QByteArray(), "no xml at all"_ba, external })
        EXPECT_FALSE(parser.parse(text, XMLParser::Mode::Tidying));
}
