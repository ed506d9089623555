// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"
#include "support/PDFBuilder.h"

#include <gtest/gtest.h>
#include <QJsonArray>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

PDFBuilder builderWithPages(int count)
{
    PDFBuilder pdf;
    for (int i = 0; i < count; ++i)
        pdf.addPage();
    return pdf;
}

QJsonArray annotationsOf(const PDFBuilder& pdf, int page = 0)
{
    ServiceSession session;
    session.open(pdf.build());
    return session.ask(u"annotations"_s, { { u"page"_s, page } }).value(u"annotations").toArray();
}

QJsonArray outlineOf(const PDFBuilder& pdf)
{
    ServiceSession session;
    session.open(pdf.build());
    return session.ask(u"outline"_s).value(u"entries").toArray();
}

struct LinkCase {
    const char* entries; // of the link; 7 0 R is the second page's object
    const char* url; // null: none
    std::optional<int> page;
};

} // namespace

TEST(Annotations, HaveTypeAndBoundsOfTheFile)
{
    PDFBuilder pdf;
    pdf.addPage({ .cropBox = PDFBuilder::Box{ 100, 100, 400, 400 }, .rotation = 90 });
    pdf.addAnnotation(0, "/Subtype /Text /Rect [30.5 40 10 20]");
    pdf.addAnnotation(0, "/Subtype /Widget /FT /Tx /T (f) /Rect [0 0 5 5]");
    pdf.addAnnotation(0, "/Subtype /Link /Rect [1 2]");
    const QJsonArray list = annotationsOf(pdf);
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list.at(0).toObject().value(u"type").toString(), u"Text"_s);
    EXPECT_EQ(list.at(0).toObject().value(u"bounds").toArray(), QJsonArray({ 10, 20, 20.5, 20 }));
    EXPECT_EQ(list.at(1).toObject().value(u"type").toString(), u"Widget"_s);
    EXPECT_FALSE(list.at(2).toObject().contains(u"url"));
    EXPECT_FALSE(list.at(2).toObject().contains(u"page"));
}

TEST(Annotations, LeadWhereTheirActionsAndDestinationsSay)
{
    const LinkCase cases[] = {
        { "/A << /S /URI /URI (https://example.org/a?b=1#c) >>", "https://example.org/a?b=1#c",
            {} },
        { "/A << /S /URI /URI (mailto:a@example.org) >>", "mailto:a@example.org", {} },
        { "/A << /S /URI /URI (www.example.org) >>", "http://www.example.org", {} },
        { "/A << /S /URI /URI (http://example.org/\\303\\251) >>", "http://example.org/é", {} },
        { "/Dest [6 0 R /XYZ 0 0 0]", nullptr, 1 },
        { "/Dest [2 /Fit]", nullptr, 2 },
        { "/Dest [99 /Fit]", nullptr, -1 },
        { "/Dest [3 0 R /Fit]", nullptr, -1 }, // the font
        { "/Dest (tree)", nullptr, 2 },
        { "/Dest /old", nullptr, 1 },
        { "/Dest (nowhere)", nullptr, -1 },
        { "/A << /S /GoTo /D (tree) >>", nullptr, 2 },
        { "/A << /S /GoTo /D [6 0 R /Fit] >>", nullptr, 1 },
        { "/A << /S /GoTo >>", nullptr, -1 },
        { "/A << /S /GoToR /F (other.pdf) /D [1 /Fit] >>", nullptr, -1 },
        { "/A << /S /GoToR /F << /UF (http://example.org/x.pdf) >> /D [1 /Fit] >>",
            "http://example.org/x.pdf", {} },
        { "/A << /S /Launch /F (https://example.org) >>", "https://example.org", {} },
        { "/A << /S /Launch /F (C:\\\\calc.exe) >>", nullptr, {} },
        { "/A << /S /JavaScript /JS (app.alert\\(1\\)) >>", nullptr, {} },
        { "/A << /S /Named /N /NextPage >>", nullptr, 1 },
        { "/A << /S /Named /N /LastPage >>", nullptr, 2 },
    };
    PDFBuilder pdf = builderWithPages(3);
    ASSERT_EQ(pdf.pageObject(1), 6);
    pdf.addNamedDestination("tree", 2);
    pdf.addCatalogueEntries("/Dests << /old << /D [6 0 R /Fit] >> /loop /loop >>");
    for (const LinkCase& link : cases)
        pdf.addAnnotation(0, QByteArray("/Subtype /Link /Rect [0 0 9 9] ") + link.entries);
    const QJsonArray list = annotationsOf(pdf);
    ASSERT_EQ(list.size(), static_cast<qsizetype>(std::size(cases)));
    for (qsizetype i = 0; i < list.size(); ++i) {
        const LinkCase& expected = cases[i];
        const QJsonObject found = list.at(i).toObject();
        EXPECT_EQ(found.contains(u"url"), expected.url != nullptr) << expected.entries;
        EXPECT_EQ(found.value(u"url").toString(), QString::fromUtf8(expected.url))
            << expected.entries;
        EXPECT_EQ(found.contains(u"page"), expected.page.has_value()) << expected.entries;
        EXPECT_EQ(found.value(u"page").toInt(-2), expected.page.value_or(-2)) << expected.entries;
    }
}

TEST(Annotations, ResolveRelativeAddressesAgainstTheBaseOfTheDocument)
{
    PDFBuilder pdf = builderWithPages(1);
    pdf.addCatalogueEntries("/URI << /Base (https://example.org/books/index.html) >>");
    pdf.addURLLink(0, { 0, 0, 9, 9 }, "../shop?q=1");
    pdf.addURLLink(0, { 0, 0, 9, 9 }, "ftp://elsewhere.org/x");
    const QJsonArray list = annotationsOf(pdf);
    EXPECT_EQ(list.at(0).toObject().value(u"url").toString(), u"https://example.org/shop?q=1"_s);
    EXPECT_EQ(list.at(1).toObject().value(u"url").toString(), u"ftp://elsewhere.org/x"_s);
}

TEST(Annotations, FindNamesInATreeThatClosesToALoop)
{
    PDFBuilder pdf = builderWithPages(2);
    const int node = pdf.addObject({});
    pdf.replaceObject(node,
        "<< /Kids [" + PDFBuilder::reference(node)
            + "] /Names [(here) [6 0 R /Fit] (loop) (loop)] >>");
    pdf.addCatalogueEntries("/Names << /Dests " + PDFBuilder::reference(node) + " >>");
    pdf.addNamedLink(0, { 0, 0, 9, 9 }, "here");
    pdf.addNamedLink(0, { 0, 0, 9, 9 }, "loop");
    const QJsonArray list = annotationsOf(pdf);
    EXPECT_EQ(list.at(0).toObject().value(u"page").toInt(-2), 1);
    EXPECT_EQ(list.at(1).toObject().value(u"page").toInt(-2), -1);
}

TEST(Outline, IsGivenInReadingOrderWithLevels)
{
    PDFBuilder pdf = builderWithPages(3);
    pdf.setOutline({ { .label = u"One – 一"_s,
                         .target = pdf.explicitDestination(0),
                         .children = { { .label = u"One A"_s, .target = "/Dest (none)" },
                             { .label = u"One B"_s,
                                 .target = "/A << /S /URI /URI (http://example.org) >>" } } },
        { .label = u"Two"_s,
            .target
            = "/A << /S /GoTo /D [" + PDFBuilder::reference(pdf.pageObject(2)) + " /Fit] >>" },
        { .label = {} } });
    const QJsonArray entries = outlineOf(pdf);
    const auto entry = [](const QString& label, int level, int page) {
        return QJsonObject{ { u"label"_s, label }, { u"level"_s, level }, { u"page"_s, page } };
    };
    EXPECT_EQ(entries,
        QJsonArray({ entry(u"One – 一"_s, 1, 0), entry(u"One A"_s, 2, -1), entry(u"One B"_s, 2, -1),
            entry(u"Two"_s, 1, 2), entry(QString(), 1, -1) }));
}

TEST(Outline, IsEmptyWhenThereIsNone)
{
    EXPECT_TRUE(outlineOf(builderWithPages(1)).isEmpty());
}

TEST(Outline, EndsWhereItClosesToALoop)
{
    PDFBuilder pdf = builderWithPages(1);
    const int first = pdf.addObject({});
    const int second = pdf.addObject({});
    pdf.replaceObject(first,
        "<< /Title (a) /Next " + PDFBuilder::reference(second) + " /First "
            + PDFBuilder::reference(first) + " >>");
    pdf.replaceObject(second, "<< /Title (b) /Next " + PDFBuilder::reference(first) + " >>");
    pdf.addCatalogueEntries("/Outlines << /First " + PDFBuilder::reference(first) + " >>");
    EXPECT_EQ(outlineOf(pdf).size(), 2);
}

TEST(Outline, HangsWhatIsNestedTooDeeplyAtTheLastLevel)
{
    constexpr int depth = 100'000;
    PDFBuilder pdf = builderWithPages(1);
    const int last = pdf.addObject("<< /Title (deep) >>") + depth;
    for (int i = 1; i <= depth; ++i)
        pdf.addObject(
            "<< /Title (deep) /First " + PDFBuilder::reference(last - depth + i - 1) + " >>");
    pdf.addCatalogueEntries("/Outlines << /First " + PDFBuilder::reference(last) + " >>");
    const QJsonArray entries = outlineOf(pdf);
    ASSERT_EQ(entries.size(), 100'000);
    EXPECT_EQ(entries.at(99).toObject().value(u"level").toInt(), 100);
    EXPECT_EQ(entries.last().toObject().value(u"level").toInt(), 100);
}
