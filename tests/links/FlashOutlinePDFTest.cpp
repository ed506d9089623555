// SPDX-License-Identifier: MIT
#include "links/FlashOutlinePDF.h"

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashOutlinePDFTest : public testing::Test {
protected:
    FlashOutlinePDFTest()
    {
        for (int i = 0; i < 4; ++i)
            iBuilder.addPage();
    }

    std::shared_ptr<PDFDocument> open()
    {
        const QString path = writeTestFile(iFolder.filePath(u"outline.pdf"_s), iBuilder.build());
        return PDFDocument::open({ .path = path, .password = {}, .limits = {} }).document;
    }

    QTemporaryDir iFolder;
    PDFBuilder iBuilder;
};

} // namespace

TEST_F(FlashOutlinePDFTest, TakesTheBookmarksWithTheirNumbersInTheWholeDocument)
{
    iBuilder.setOutline(
        { { .label = u"Äpfel"_s,
              .target = iBuilder.explicitDestination(0),
              .children = { { .label = u"Boskop"_s, .target = iBuilder.explicitDestination(3) } } },
            { .label = u"No target"_s } });
    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(open().get());
    EXPECT_EQ(QString::fromUtf8(outline.outlineAsXMLNode().toUtf8()),
        u"<ols><o><c>Äpfel</c><p>1</p><l>1</l><ci>"
        "<o><c>Boskop</c><p>4</p><l>2</l><ci/></o></ci></o>"
        "<o><c>No target</c><p>0</p><l>1</l><ci/></o></ols>"_s);
    ASSERT_EQ(outline.items().size(), 2u);
    const FlashOutlineItem& first = *outline.items().front();
    EXPECT_EQ(first.parent(), nullptr);
    EXPECT_EQ(first.childItems().front()->parent(), &first);
}

TEST_F(FlashOutlinePDFTest, AppendsToWhatIsThere)
{
    iBuilder.setOutline({ { .label = u"One"_s, .target = iBuilder.explicitDestination(0) } });
    FlashOutlinePDF outline;
    const auto document = open();
    outline.loadOutlineFromPDF(document.get());
    outline.loadOutlineFromPDF(document.get());
    EXPECT_EQ(outline.items().size(), 2u);
}

TEST_F(FlashOutlinePDFTest, IsEmptyWithoutBookmarksOrWithoutADocument)
{
    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(open().get());
    outline.loadOutlineFromPDF(nullptr);
    EXPECT_EQ(outline.outlineAsXMLNode().toUtf8(), "<ols/>");
}
