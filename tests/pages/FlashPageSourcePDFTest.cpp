// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourcePDF.h"

#include "pages/ProgressRecorder.h"
#include "support/LogCapture.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class FlashPageSourcePDFTest : public testing::Test {
protected:
    FlashPageSourcePDFTest()
    {
        for (int i = 0; i < 9; ++i)
            iBuilder.addPage({ .content = PDFBuilder::showText("Page of a book", 72, 700, 24) });
    }

    std::unique_ptr<FlashPageSourcePDF> open(const QString& range, qint32 quality = 25)
    {
        const QString path = writeTestFile(iFolder.filePath(u"a 100%1.pdf"_s), iBuilder.build());
        return std::make_unique<FlashPageSourcePDF>(path, range, 144, quality);
    }

    static QString described(const FlashPageSource::Pages& pages)
    {
        QStringList list;
        for (const auto& page : pages) {
            const QFileInfo file(page->pageFilePath());
            const QString name = file.exists() ? file.fileName() : u"no "_s + file.fileName();
            list.append(QString::number(page->pageIndex()) + u": "_s + name);
        }
        return list.join(u", "_s);
    }

    QTemporaryDir iFolder;
    PDFBuilder iBuilder;
};

} // namespace

TEST_F(FlashPageSourcePDFTest, DrawsThePagesThatAreNotReadyAtTwiceTheirSizeForAsLongAsItLives)
{
    auto source = open(u"1,3"_s);
    const QString folder = source->toPageConverter()->converterWorkFolder();
    writeTestFile(folder + u"/1.swf"_s, "FWS");
    const ProgressRecorder progress;
    source->generatePages();
    source->generateNormalPages();
    EXPECT_EQ(described(source->normalPages()), u"1: 1.swf, 3: 3.jpg"_s);
    EXPECT_EQ(progress.lines.join(u", "_s),
        u"geneatePage 1/2, geneatePage 2/2, geneateNormalPage 1/2, geneateNormalPage 2/2"_s);
    EXPECT_EQ(source->pageReports().at(1).picture.width, 1224);
    EXPECT_EQ(source->pageReports().at(1).picture.height, 1584);
    source.reset();
    EXPECT_FALSE(QFile::exists(folder));
}

TEST_F(FlashPageSourcePDFTest, StoppingKeepsThePagesDrawnAndNothingThatWasDrawnAhead)
{
    const auto source = open(u"ALL"_s);
    const ProgressRecorder progress{ [&](const QString& line) {
        source->setStop(line == u"geneatePage 2/9"_s);
    } };
    source->generatePages();
    source->generateNormalPages();
    EXPECT_EQ(described(source->pages()), u"1: 1.jpg, 2: 2.jpg"_s);
    EXPECT_TRUE(source->normalPages().empty());
    const QDir folder(source->toPageConverter()->converterWorkFolder());
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 2);
}

TEST_F(FlashPageSourcePDFTest, APageThatFailsOrIsNotThereCostsOnlyItself)
{
    iBuilder.replaceObject(iBuilder.pageObject(1), "null");
    const auto source = open(u"0-3,12"_s);
    const LogCapture log;
    source->generatePages();
    EXPECT_EQ(described(source->pages()),
        u"0: no 0.jpg, 1: 1.jpg, 2: no 2.jpg, 3: 3.jpg, 12: no 12.jpg"_s);
    EXPECT_EQ(source->pageReports().front().picture.problem, u"the document has no such page"_s);
    EXPECT_FALSE(source->pageReports().at(2).picture.problem.isEmpty());
    EXPECT_TRUE(log.lines().first().endsWith(
        u"a 100%1.pdf has 9 pages; the range 0-3,12 asks for 2 that it does not have"_s));
}

TEST_F(FlashPageSourcePDFTest, ADocumentThatCannotBeOpenedGivesPagesWithoutFilesAndAReason)
{
    FlashPageSourcePDF source(u"/no/such.pdf"_s, u"1-2"_s, 144, 100);
    source.generatePages();
    EXPECT_EQ(source.openResult().error, PDFOpenError::Missing);
    EXPECT_EQ(described(source.pages()), u"1: no 1.swf, 2: no 2.swf"_s);
}

TEST_F(FlashPageSourcePDFTest, EveryQualityBelowTheBestIsTheStrongestCompression)
{
    const auto bytesAt = [this](qint32 quality) {
        const auto source = open(u"1"_s, quality);
        source->generatePages();
        return source->pageReports().at(0).picture.bytes;
    };
    EXPECT_EQ(bytesAt(85), bytesAt(25));
    EXPECT_GT(bytesAt(100), bytesAt(25));
}
