// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonObject textOf(const PDFBuilder::Page& page)
{
    PDFBuilder pdf;
    pdf.addPage(page);
    return ServiceSession(pdf).ask(u"text"_s, { { u"page"_s, 0 } });
}

QJsonArray linesOf(const PDFBuilder::Page& page)
{
    return textOf(page)[u"lines"].toArray();
}

} // namespace

TEST(Text, IsGivenInLinesOfWordsWithoutWhatIsCroppedAway)
{
    const QJsonArray lines = linesOf({ .mediaBox = { 0, 0, 400, 400 },
        .cropBox = PDFBuilder::Box{ 100, 100, 300, 300 },
        .content = PDFBuilder::showText("gone", 10, 200) + PDFBuilder::showText("edge", 90, 250)
            + PDFBuilder::showText("  Hello   wide world", 110, 150) });
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0][u"text"], u"edge"_s);
    EXPECT_EQ(lines[0][u"boxes"][0][0].toDouble(-1), 0); // clipped
    EXPECT_EQ(lines[1][u"text"], u"Hello wide world"_s);
    EXPECT_EQ(lines[1][u"boxes"].toArray().size(), 3);
    EXPECT_TRUE(linesOf({}).isEmpty());
}

TEST(Text, IsCutWhereNobodyCouldReadOn)
{
    const QJsonObject text
        = textOf({ .content = PDFBuilder::showText(QByteArray(250'000, 'x'), 9, 9)
                + PDFBuilder::showText("beyond", 9, 99) });
    EXPECT_EQ(text[u"lines"].toArray().size(), 1);
    EXPECT_EQ(text[u"lines"][0][u"text"].toString().size(), 200'000);
    EXPECT_TRUE(text[u"cut"].toBool());
}
