// SPDX-License-Identifier: MIT
#include "pdf/PDFTextReader.h"

#include "FakeServiceTest.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFTextReaderTest : public FakeServiceTest { };

TEST_F(PDFTextReaderTest, TextComesInTheOrderAskedForWhateverHappensToOnePage)
{
    const std::vector<int> order{ 7, 0, 3, 20, 1, 2, 4, 5, 6, 39, 38, 7 };
    PDFTextReader reader(
        documentThat(R"({"pages":40,"7":"slow","3":"crash","20":"slow"})"), order, 3);
    for (const int page : order) {
        const std::vector<PDFTextLine> lines = reader.next();
        EXPECT_EQ(lines.empty() ? QString() : lines.front().text,
            page == 3 ? QString() : u"text of page %1"_s.arg(page));
    }
    EXPECT_TRUE(reader.atEnd() && reader.next().empty());
    EXPECT_EQ(iLog.lines().size(), 1);
}
