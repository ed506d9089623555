// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace leafcast {

class InspectCommand : public CommandLineTest {
protected:
    void SetUp() override
    {
        PDFBuilder builder;
        builder.addPage({ .mediaBox = { 0, 0, 600, 800 } });
        builder.addPage({ .mediaBox = { 0, 0, 600, 800 }, .rotation = 90 });
        builder.addURLLink(0, { 60, 700, 180, 740 }, "https://leaves.example/");
        builder.addPageLink(1, { 0, 0, 10, 10 }, 0);
        builder.setOutline({ { u"Wood"_s, builder.explicitDestination(1), {} } });
        builder.setTitle(u"Tre\u009Bes"_s);
        writePDF(u"in.pdf"_s, builder);
    }
};

TEST_F(InspectCommand, TellsWhatThePDFHolds)
{
    const QJsonObject found = run("inspect in.pdf --json").json();
    EXPECT_EQ(found[u"title"_s], u"Tre\u009Bes"_s);
    EXPECT_EQ(found[u"webLinks"_s], 1);
    EXPECT_EQ(found[u"pageLinks"_s], 1);
    EXPECT_EQ(found[u"outlineEntries"_s], 1);
    EXPECT_EQ(found[u"damaged"_s], false);
    EXPECT_EQ(found[u"pages"_s][1][u"width"_s], 800);
    EXPECT_EQ(found[u"pages"_s][1][u"rotation"_s], 90);

    const Outcome text = run("inspect in.pdf");
    EXPECT_TRUE(text.output.contains("Tre\uFFFDes\n")) << "a terminal would obey it";
    EXPECT_TRUE(text.output.contains("1: 600 x 800 points\n")) << text.output.toStdString();
    EXPECT_TRUE(text.output.contains("2: 800 x 600 points, rotated by 90\n"))
        << text.output.toStdString();
}

TEST_F(InspectCommand, PrintsLinksAndOutlineAsXml)
{
    EXPECT_EQ(run("inspect in.pdf --outline-xml").output,
        "<ols><o><c>Wood</c><p>2</p><l>1</l><ci/></o></ols>\n");
    const QByteArray links = run("inspect in.pdf --links-xml --pages 1").output;
    EXPECT_TRUE(links.contains("<url>https://leaves.example/</url>")) << links.toStdString();
    EXPECT_TRUE(links.contains(
        "<location x=\"0.100000\" y=\"0.075000\" width=\"0.200000\" height=\"0.050000\"/>"))
        << links.toStdString();
}

TEST_F(InspectCommand, RefusesWhatItCannotRead)
{
    EXPECT_EQ(run("inspect missing.pdf").status, 3);
    EXPECT_EQ(run("inspect").status, 2);
    EXPECT_EQ(run("inspect in.pdf --links-xml --pages 1-2000000000").status, 2);
    EXPECT_EQ(run("inspect in.pdf --json --outline-xml").status, 2);
}

} // namespace leafcast
