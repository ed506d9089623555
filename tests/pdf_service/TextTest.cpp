// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"
#include "support/PDFBuilder.h"

#include <gtest/gtest.h>
#include <QJsonArray>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonArray linesOf(const PDFBuilder::Page& page)
{
    PDFBuilder pdf;
    pdf.addPage(page);
    ServiceSession session;
    session.open(pdf.build());
    return session.ask(u"text"_s, { { u"page"_s, 0 } }).value(u"lines").toArray();
}

QStringList textsOf(const QJsonArray& lines)
{
    QStringList texts;
    for (const QJsonValue line : lines)
        texts += line.toObject().value(u"text").toString();
    return texts;
}

struct Middle {
    double x, y;
};

Middle middleOf(const QJsonArray& lines, int line, int word)
{
    const QJsonArray box = lines.at(line).toObject().value(u"boxes").toArray().at(word).toArray();
    return { box.at(0).toDouble() + box.at(2).toDouble() / 2,
        box.at(1).toDouble() + box.at(3).toDouble() / 2 };
}

} // namespace

TEST(Text, IsGivenInLinesOfWordsWithOneBoxEach)
{
    const QJsonArray lines = linesOf({ .mediaBox = { 0, 0, 400, 400 },
        .content = PDFBuilder::showText("  Hello   wide world", 100, 300)
            + PDFBuilder::showText("next", 100, 100) });
    EXPECT_EQ(textsOf(lines), QStringList({ u"Hello wide world"_s, u"next"_s }));
    ASSERT_EQ(lines.at(0).toObject().value(u"boxes").toArray().size(), 3);
    EXPECT_LT(middleOf(lines, 0, 0).x, middleOf(lines, 0, 1).x);
    EXPECT_NEAR(middleOf(lines, 0, 0).y, 0.24, 0.02);
    EXPECT_NEAR(middleOf(lines, 1, 0).y, 0.74, 0.02);
}

TEST(Text, HasItsPlaceOnThePageAsDisplayed)
{
    // The word stands at a quarter of the crop box from the left and from the bottom.
    const struct {
        int rotation;
        double x, y;
    } cases[] = { { 0, 0.25, 0.75 }, { 90, 0.25, 0.25 }, { 180, 0.75, 0.25 }, { 270, 0.75, 0.75 } };
    for (const auto& turned : cases) {
        const QJsonArray lines = linesOf({ .mediaBox = { 0, 0, 2000, 2000 },
            .cropBox = PDFBuilder::Box{ 500, 700, 1500, 1100 },
            .rotation = turned.rotation,
            .userUnit = 2,
            .content = PDFBuilder::showText("x", 750, 800, 4) });
        ASSERT_EQ(lines.size(), 1) << turned.rotation;
        EXPECT_NEAR(middleOf(lines, 0, 0).x, turned.x, 0.01) << turned.rotation;
        EXPECT_NEAR(middleOf(lines, 0, 0).y, turned.y, 0.01) << turned.rotation;
    }
}

TEST(Text, LeavesOutWhatIsCroppedAwayAndClipsWhatIsPartlySeen)
{
    const QJsonArray lines = linesOf({ .mediaBox = { 0, 0, 400, 400 },
        .cropBox = PDFBuilder::Box{ 100, 100, 300, 300 },
        .content = PDFBuilder::showText("gone", 10, 200) + PDFBuilder::showText("edge", 90, 150)
            + PDFBuilder::showText("kept", 150, 250) });
    EXPECT_EQ(textsOf(lines), QStringList({ u"edge"_s, u"kept"_s }));
    const QJsonArray box = lines.at(0).toObject().value(u"boxes").toArray().at(0).toArray();
    EXPECT_EQ(box.at(0).toDouble(-1), 0);
}

TEST(Text, IsEmptyForAPageWithoutAny)
{
    EXPECT_TRUE(linesOf({}).isEmpty());
}
