// SPDX-License-Identifier: MIT
#include "pdf/PDFTextReader.h"

#include "FakeServiceTest.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFTextReaderTest : public FakeServiceTest { };

TEST_F(PDFTextReaderTest, TextComesInTheOrderAskedForWhateverHappensToOnePage)
{
    const PDFDocument::Source source
        = documentThat(R"({"pages":40,"7":"slow","3":"crash","20":"slow"})");
    const std::vector<int> order{ 7, 0, 3, 20, 1, 2, 4, 5, 6, 39, 38, 7 };

    PDFTextReader reader(source, order, 3);
    for (const int page : order) {
        ASSERT_FALSE(reader.atEnd());
        const std::vector<PDFTextLine> lines = reader.next();
        EXPECT_EQ(lines.empty() ? QString() : lines.front().text,
            page == 3 ? QString() : u"text of page %1"_s.arg(page));
    }
    EXPECT_TRUE(reader.atEnd());
    EXPECT_TRUE(reader.next().empty());
    EXPECT_EQ(iLog.lines().size(), 1);
}

TEST_F(PDFTextReaderTest, EndingEarlyLeavesNoProcessAndNoThread)
{
    const PDFDocument::Source source = documentThat(R"({"pages":9,"1":"hang","2":"hang"})");
    const qsizetype threads = threadCount();
    {
        PDFTextReader reader(source, { 0, 1, 2, 3, 4 }, 2);
        EXPECT_FALSE(reader.next().empty());
    }
    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(threadCount(), threads);
    PDFTextReader(source, {}).next();
}
