// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonArray linesOf(const PDFBuilder::Page& page)
{
    PDFBuilder pdf;
    pdf.addPage(page);
    return ServiceSession(pdf).ask(u"text"_s, { { u"page"_s, 0 } }).value(u"lines").toArray();
}

QStringList textsOf(const QJsonArray& lines)
{
    QStringList texts;
    for (const QJsonValue line : lines)
        texts += line.toObject().value(u"text").toString();
    return texts;
}

QJsonArray firstBoxOf(const QJsonArray& lines)
{
    return lines.at(0).toObject().value(u"boxes").toArray().at(0).toArray();
}

} // namespace

TEST(Text, HasItsPlaceOnThePageAsDisplayed)
{
    // The word stands at a quarter of the crop box from the left and from the bottom.
    const struct {
        int rotation;
        double x, y;
    } cases[] = { { 0, 0.25, 0.75 }, { 90, 0.25, 0.25 }, { 180, 0.75, 0.25 }, { 270, 0.75, 0.75 } };
    for (const auto& turned : cases) {
        const QJsonArray box = firstBoxOf(linesOf({ .mediaBox = { 0, 0, 2000, 2000 },
            .cropBox = PDFBuilder::Box{ 500, 700, 1500, 1100 },
            .rotation = turned.rotation,
            .userUnit = 2,
            .content = PDFBuilder::showText("x", 750, 800, 4) }));
        EXPECT_NEAR(box.at(0).toDouble() + box.at(2).toDouble() / 2, turned.x, 0.01);
        EXPECT_NEAR(box.at(1).toDouble() + box.at(3).toDouble() / 2, turned.y, 0.01);
    }
}

TEST(Text, IsGivenInLinesOfWordsWithoutWhatIsCroppedAway)
{
    const QJsonArray lines = linesOf({ .mediaBox = { 0, 0, 400, 400 },
        .cropBox = PDFBuilder::Box{ 100, 100, 300, 300 },
        .content = PDFBuilder::showText("gone", 10, 200) + PDFBuilder::showText("edge", 90, 250)
            + PDFBuilder::showText("  Hello   wide world", 110, 150) });
    EXPECT_EQ(textsOf(lines), QStringList({ u"edge"_s, u"Hello wide world"_s }));
    EXPECT_EQ(firstBoxOf(lines).at(0).toDouble(-1), 0); // clipped
    EXPECT_EQ(lines.at(1).toObject().value(u"boxes").toArray().size(), 3);
    EXPECT_TRUE(linesOf({}).isEmpty());
}
