// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonArray outlineOf(const PDFBuilder& pdf)
{
    return ServiceSession(pdf).ask(u"outline"_s).value(u"entries").toArray();
}

const QJsonValue Nowhere(QJsonValue::Undefined);

// The entries of a link and where it leads: an address, a page or nowhere.
struct LinkCase {
    QByteArray entries;
    QJsonValue target;
};

void expectTargets(PDFBuilder pdf, const std::vector<LinkCase>& cases)
{
    for (const LinkCase& link : cases)
        pdf.addAnnotation(0, "/Subtype /Link /Rect [30.5 40 10 20] " + link.entries);
    const QJsonObject answer = ServiceSession(pdf).ask(u"annotations"_s, { { u"page"_s, 0 } });
    for (size_t i = 0; i < cases.size(); ++i) {
        const QJsonValue& target = cases[i].target;
        SCOPED_TRACE(cases[i].entries.constData());
        const QJsonObject found = answer[u"annotations"][static_cast<qsizetype>(i)].toObject();
        EXPECT_EQ(found.value(u"type"), u"Link"_s);
        EXPECT_EQ(found.value(u"bounds"), QJsonArray({ 10, 20, 20.5, 20 }));
        EXPECT_EQ(found.value(u"url"), target.isString() ? target : Nowhere);
        EXPECT_EQ(found.value(u"page"), target.isDouble() ? target : Nowhere);
    }
}

} // namespace

TEST(Annotations, LeadToTheAddressesOfTheirActions)
{
    expectTargets(PDFBuilder(3),
        {
            { "/A << /S /URI /URI (www.example.org) >>", u"http://www.example.org"_s },
            { "/A << /S /URI /URI (http://example.org/\\303\\251) >>", u"http://example.org/é"_s },
            { "/A << /S /GoToR /F (other.pdf) /D [1 /Fit] >>", -1 },
            { "/A << /S /GoToR /F << /UF (http://example.org/x.pdf) >> /D [1 /Fit] >>",
                u"http://example.org/x.pdf"_s },
            { "/A << /S /Launch /F (https://example.org) >>", u"https://example.org"_s },
            { "/A << /S /Launch /F (C:\\\\calc.exe) >>", Nowhere },
            { "/A << /S /JavaScript /JS (app.alert\\(1\\)) >>", Nowhere },
        });
    PDFBuilder pdf(1);
    pdf.addCatalogueEntries("/URI << /Base (https://example.org/books/index.html) >>");
    expectTargets(pdf,
        {
            { "/A << /S /URI /URI (../shop?q=1) >>", u"https://example.org/shop?q=1"_s },
            { "/A << /S /URI /URI (mailto:a@example.org) >>", u"mailto:a@example.org"_s },
        });
}

TEST(Annotations, LeadToThePagesOfTheirDestinationsThoughTheNamesCloseToALoop)
{
    PDFBuilder pdf(3);
    const QByteArray second = PDFBuilder::reference(pdf.pageObject(1));
    const QByteArray third = PDFBuilder::reference(pdf.pageObject(2));
    const int node = pdf.addObject({});
    const QByteArray names = PDFBuilder::reference(node);
    pdf.replaceObject(
        node, "<< /Kids [" + names + "] /Names [(loop) (loop) (tree) [" + third + " /Fit]] >>");
    pdf.addCatalogueEntries("/Names << /Dests " + names + " >>");
    pdf.addCatalogueEntries("/Dests << /old << /D [" + second + " /Fit] >> /loop /loop >>");
    expectTargets(pdf,
        {
            { "/Dest [" + second + " /XYZ 0 0 0]", 1 },
            { "/Dest [2 /Fit]", 2 },
            { "/Dest [99 /Fit]", -1 },
            { "/Dest [3 0 R /Fit]", -1 }, // the font
            { "/Dest (tree)", 2 },
            { "/Dest /old", 1 },
            { "/Dest /loop", -1 },
            { "/Dest (loop)", -1 },
            { "/Dest (nowhere)", -1 },
            { "/A << /S /GoTo /D (tree) >>", 2 },
            { "/A << /S /GoTo >>", -1 },
            { "/A << /S /Named /N /NextPage >>", 1 },
            { "/A << /S /Named /N /LastPage >>", 2 },
        });
}

TEST(Outline, IsGivenInReadingOrderWithLevels)
{
    PDFBuilder pdf(3);
    const QByteArray web = "/A << /S /URI /URI (http://example.org) >>";
    const QByteArray last
        = "/A << /S /GoTo /D [" + PDFBuilder::reference(pdf.pageObject(2)) + " /Fit] >>";
    pdf.setOutline({ { u"One – 一"_s, pdf.explicitDestination(0),
                         { { u"One A"_s, "/Dest (none)", {} }, { u"One B"_s, web, {} } } },
        { u"Two"_s, last, {} }, { {}, {}, {} } });
    const auto entry = [](const QString& label, int level, int page) {
        return QJsonObject{ { u"label"_s, label }, { u"level"_s, level }, { u"page"_s, page } };
    };
    EXPECT_EQ(outlineOf(pdf),
        QJsonArray({ entry(u"One – 一"_s, 1, 0), entry(u"One A"_s, 2, -1), entry(u"One B"_s, 2, -1),
            entry(u"Two"_s, 1, 2), entry(QString(), 1, -1) }));
}

TEST(Outline, EndsWhereItClosesToALoop)
{
    PDFBuilder pdf(1);
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
    PDFBuilder pdf(1);
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

TEST(Annotations, KeepTheirTargetsInALongSession)
{
    PDFBuilder pdf(3);
    pdf.addCatalogueEntries("/Names << /Dests << /Names [(tree) [2 /Fit]] >> >>");
    pdf.addAnnotation(0, "/Subtype /Link /Rect [0 0 9 9] /Dest (tree)");
    ServiceSession session(pdf);
    const auto ask = [&] { return session.ask(u"annotations"_s, { { u"page"_s, 0 } }); };
    const QJsonObject first = ask();
    EXPECT_EQ(first[u"annotations"][0][u"page"], 2);
    // The parser's objects are dropped every few hundred requests.
    for (int i = 0; i < 500; ++i)
        ASSERT_EQ(ask().value(u"annotations"), first.value(u"annotations"));
}
