// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/NumberStyle.h"
#include "pdf_service/ServiceSession.h"
#include "support/PDFBuilder.h"

#include <gtest/gtest.h>
#include <QJsonArray>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonArray pagesOf(ServiceSession& session, int first = 0, int count = 100)
{
    return session.ask(u"pages"_s, { { u"first"_s, first }, { u"count"_s, count } })
        .value(u"pages")
        .toArray();
}

QJsonObject firstPageOf(const PDFBuilder& pdf)
{
    ServiceSession session;
    session.open(pdf.build());
    return pagesOf(session).at(0).toObject();
}

QStringList labelsOf(const PDFBuilder& pdf)
{
    ServiceSession session;
    session.open(pdf.build());
    QStringList labels;
    for (const QJsonValue page : pagesOf(session))
        labels += page.toObject().value(u"label").toString();
    return labels;
}

PDFBuilder builderWithPages(int count)
{
    PDFBuilder pdf;
    for (int i = 0; i < count; ++i)
        pdf.addPage();
    return pdf;
}

} // namespace

TEST(Pages, TellBoxesRotationAndUnitAsTheFileHasThem)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 500, 700, -10.5, 20 },
        .cropBox = PDFBuilder::Box{ 0, 0, 595.276, 650.25 },
        .rotation = -450,
        .userUnit = 2.5 });
    const QJsonObject page = firstPageOf(pdf);
    EXPECT_EQ(page.value(u"mediaBox").toArray(), QJsonArray({ -10.5, 20, 510.5, 680 }));
    EXPECT_EQ(page.value(u"cropBox").toArray(), QJsonArray({ 0, 20, 500, 630.25 }));
    EXPECT_EQ(page.value(u"rotation").toInt(), -450);
    EXPECT_EQ(page.value(u"userUnit").toDouble(), 2.5);
}

TEST(Pages, FallBackWhenABoxHasNoArea)
{
    PDFBuilder outside;
    outside.addPage({ .cropBox = PDFBuilder::Box{ 5000, 5000, 6000, 6000 } });
    EXPECT_EQ(firstPageOf(outside).value(u"cropBox").toArray(), QJsonArray({ 0, 0, 612, 792 }));
    PDFBuilder flat;
    flat.addPage({ .mediaBox = { 0, 0, 100, 0 }, .cropBox = PDFBuilder::Box{ 10, 10, 10, 90 } });
    EXPECT_EQ(firstPageOf(flat).value(u"mediaBox").toArray(), QJsonArray({ 0, 0, 612, 792 }));
    EXPECT_EQ(firstPageOf(flat).value(u"cropBox").toArray(), QJsonArray({ 0, 0, 612, 792 }));
}

TEST(Pages, InheritWhatTheyDoNotSay)
{
    PDFBuilder pdf = builderWithPages(1);
    const int node = pdf.addObject("<< /Type /Pages /Count 1 /Kids ["
        + PDFBuilder::reference(pdf.pageObject(0))
        + "] /MediaBox [0 0 300 400] /CropBox [10 20 210 320] /Rotate 90 >>");
    pdf.replaceObject(
        pdf.pageObject(0), "<< /Type /Page /Parent " + PDFBuilder::reference(node) + " >>");
    pdf.addCatalogueEntries("/Pages " + PDFBuilder::reference(node));
    const QJsonObject page = firstPageOf(pdf);
    EXPECT_EQ(page.value(u"mediaBox").toArray(), QJsonArray({ 0, 0, 300, 400 }));
    EXPECT_EQ(page.value(u"cropBox").toArray(), QJsonArray({ 10, 20, 200, 300 }));
    EXPECT_EQ(page.value(u"rotation").toInt(), 90);
}

TEST(Pages, AreGivenForTheRangeThatExists)
{
    ServiceSession session;
    session.open(builderWithPages(5).build());
    EXPECT_EQ(pagesOf(session, 3, 10).size(), 2);
    EXPECT_EQ(pagesOf(session, 5, 10).size(), 0);
    EXPECT_EQ(pagesOf(session, 2147483647, 10'000).size(), 0);
    EXPECT_EQ(pagesOf(session, 0, 0).size(), 0);
}

TEST(Labels, FollowTheRangesOfTheDocument)
{
    PDFBuilder pdf = builderWithPages(7);
    pdf.setPageLabels("0 << /S /r >> 2 << /S /D /St 9 /P (A-) >> 4 << /S /A /St 26 >>"
                      " 6 << /P <FEFF00440065006300ED> >>");
    EXPECT_EQ(labelsOf(pdf),
        QStringList({ u"i"_s, u"ii"_s, u"A-9"_s, u"A-10"_s, u"Z"_s, u"AA"_s, u"Decí"_s }));
}

TEST(Labels, AreReadFromANestedTreeAndFromPDFDocEncoding)
{
    PDFBuilder pdf = builderWithPages(3);
    const int leaf = pdf.addObject("<< /Nums [1 << /S /D /P (\\204 \\240) >>] >>");
    pdf.addCatalogueEntries("/PageLabels << /Kids [" + PDFBuilder::reference(leaf) + ' '
        + PDFBuilder::reference(leaf) + "] >>");
    EXPECT_EQ(labelsOf(pdf), QStringList({ u"1"_s, u"— €1"_s, u"— €2"_s }));
}

TEST(Labels, AreEmptyWithoutATree)
{
    EXPECT_EQ(labelsOf(builderWithPages(2)), QStringList({ QString(), QString() }));
}

TEST(NumberStyle, WritesEveryStyleAndStaysShort)
{
    EXPECT_EQ(numberInStyle(1994, 'R'), u"MCMXCIV"_s);
    EXPECT_EQ(numberInStyle(49, 'r'), u"xlix"_s);
    EXPECT_EQ(numberInStyle(27, 'a'), u"aa"_s);
    EXPECT_EQ(numberInStyle(52, 'A'), u"ZZ"_s);
    EXPECT_EQ(numberInStyle(53, 'A'), u"AAA"_s);
    EXPECT_EQ(numberInStyle(7, 0), QString());
    EXPECT_EQ(numberInStyle(0, 'r'), u"0"_s);
    EXPECT_LT(numberInStyle(2'147'483'647, 'R').size(), 20);
    EXPECT_LT(numberInStyle(2'147'483'647, 'a').size(), 20);
}
