// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

#include <QJsonDocument>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonArray pagesOf(const PDFBuilder& pdf)
{
    ServiceSession session(pdf);
    return session.ask(u"pages"_s, { { u"first"_s, 0 }, { u"count"_s, 100 } })
        .value(u"pages")
        .toArray();
}

QStringList labelsOf(const PDFBuilder& pdf)
{
    QStringList labels;
    for (const QJsonValue page : pagesOf(pdf))
        labels += page.toObject().value(u"label").toString();
    return labels;
}

} // namespace

TEST(Pages, TellBoxesRotationAndUnitOfTheFileOrOfTheNodeAbove)
{
    const QByteArray letter = R"({"cropBox":[0,0,612,792],"label":"","mediaBox":[0,0,612,792],)";
    const QByteArray cases[][2] = {
        { "/MediaBox [500 700 -10.5 20] /CropBox [0 0 595.276 650.25] /Rotate -450 /UserUnit 2.5",
            R"({"cropBox":[0,20,500,630.25],"label":"","mediaBox":[-10.5,20,510.5,680],)"
            R"("rotation":-450,"userUnit":2.5})" },
        { "",
            R"({"cropBox":[10,20,200,300],"label":"","mediaBox":[0,0,300,400],)"
            R"("rotation":90,"userUnit":1})" },
        { "/MediaBox [0 0 612 792] /CropBox [5000 5000 6000 6000]",
            letter + R"("rotation":90,"userUnit":1})" },
        { "/MediaBox [0 0 100 0] /CropBox [10 10 10 90]",
            letter + R"("rotation":90,"userUnit":1})" },
    };
    for (const auto& [entries, expected] : cases) {
        PDFBuilder pdf(1);
        const QByteArray node = PDFBuilder::reference(pdf.addObject(
            "<< /Type /Pages /Count 1 /Kids [" + PDFBuilder::reference(pdf.pageObject(0))
            + "] /MediaBox [0 0 300 400] /CropBox [10 20 210 320] /Rotate 90 >>"));
        pdf.replaceObject(pdf.pageObject(0), "<< /Type /Page /Parent " + node + entries + " >>");
        pdf.addCatalogueEntries("/Pages " + node);
        EXPECT_EQ(pagesOf(pdf).at(0), QJsonDocument::fromJson(expected).object());
    }
}

TEST(Labels, FollowTheRangesOfTheDocumentAndStayShort)
{
    EXPECT_EQ(labelsOf(PDFBuilder(1)), QStringList({ QString() }));
    // The range that begins at each page, or none.
    const std::pair<QByteArray, QString> cases[] = { { "/S /r", u"i"_s }, { {}, u"ii"_s },
        { "/S /D /St 9 /P (A-)", u"A-9"_s }, { {}, u"A-10"_s }, { "/S /A /St 26", u"Z"_s },
        { {}, u"AA"_s }, { "/P <FEFF00440065006300ED>", u"Decí"_s },
        { "/S /R /St 1994", u"MCMXCIV"_s }, { "/S /r /St 49", u"xlix"_s },
        { "/S /a /St 53", u"aaa"_s }, { "/S /r /St 0", u"0"_s },
        { "/S /R /St 2147483647", u"2147483647"_s }, { "/S /a /St 2147483647", u"2147483647"_s } };
    PDFBuilder pdf(static_cast<int>(std::size(cases)));
    QByteArray ranges;
    QStringList expected;
    for (const auto& [entries, label] : cases) {
        if (!entries.isEmpty())
            ranges += QByteArray::number(expected.size()) + " << " + entries + " >> ";
        expected += label;
    }
    pdf.setPageLabels(ranges);
    EXPECT_EQ(labelsOf(pdf), expected);
}

TEST(Labels, AreReadFromANestedTreeAndFromPDFDocEncoding)
{
    PDFBuilder pdf(3);
    const int leaf = pdf.addObject("<< /Nums [1 << /S /D /P (\\204 \\240) >>] >>");
    pdf.addCatalogueEntries("/PageLabels << /Kids [" + PDFBuilder::reference(leaf) + ' '
        + PDFBuilder::reference(leaf) + "] >>");
    EXPECT_EQ(labelsOf(pdf), QStringList({ u"1"_s, u"— €1"_s, u"— €2"_s }));
}
