// SPDX-License-Identifier: MIT
#include "links/FlashOutlinePDF.h"

#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(FlashOutlinePDF, AppendsTheBookmarksWithTheirNumbersInTheWholeDocument)
{
    PDFBuilder builder(4);
    const PDFBuilder::OutlineEntry child{ u"Boskop"_s, builder.explicitDestination(3), {} };
    builder.setOutline(
        { { u"Äpfel"_s, builder.explicitDestination(0), { child } }, { u"No target"_s, {}, {} } });
    const QTemporaryDir folder;
    const QString path = writeTestFile(folder.filePath(u"outline.pdf"_s), builder.build());
    const auto document
        = PDFDocument::open({ .path = path, .password = {}, .limits = {} }).document;

    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(nullptr);
    outline.loadOutlineFromPDF(document.get());
    EXPECT_EQ(outline.outlineAsXMLNode().toUtf8(),
        "<ols><o><c>Äpfel</c><p>1</p><l>1</l><ci>"
        "<o><c>Boskop</c><p>4</p><l>2</l><ci/></o></ci></o>"
        "<o><c>No target</c><p>0</p><l>1</l><ci/></o></ols>");
    outline.loadOutlineFromPDF(document.get());
    EXPECT_EQ(outline.items().size(), 4u);
}
