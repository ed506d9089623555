// SPDX-License-Identifier: MIT
#include "pages/FlashPageSourcePDF.h"

#include "pages/ProgressRecorder.h"
#include "support/LogCapture.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr qint32 dialogDPI = 144;
constexpr qint32 bestQuality = 100;

class FlashPageSourcePDFTest : public testing::Test {
protected:
    QString writePDF(int pageCount)
    {
        PDFBuilder builder;
        for (int i = 0; i < pageCount; ++i)
            builder.addPage({ .content = PDFBuilder::showText("Page of a book", 72, 700, 24) });
        return writeTestFile(iFolder.filePath(u"a 100%1.pdf"_s), builder.build());
    }

    std::unique_ptr<FlashPageSourcePDF> open(
        const QString& range, int pageCount = 3, qint32 quality = 25) // as the dialog's lowest
    {
        return std::make_unique<FlashPageSourcePDF>(writePDF(pageCount), range, dialogDPI, quality);
    }

    static QStringList described(const FlashPageSource::Pages& pages)
    {
        QStringList list;
        for (const auto& page : pages) {
            const QFileInfo file(page->pageFilePath());
            list.append(u"%1 %2%3"_s.arg(QString::number(page->pageIndex()), file.fileName(),
                file.exists() ? u""_s : u" missing"_s));
        }
        return list;
    }

    static QStringList workFiles(const FlashPageSourcePDF& source)
    {
        return QDir(source.toPageConverter()->converterWorkFolder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir iFolder;
};

} // namespace

TEST_F(FlashPageSourcePDFTest, DrawsThePagesOfTheRangeAtTwiceTheirSize)
{
    const auto source = open(u"1,3"_s);
    source->generatePages();
    source->generateNormalPages();
    EXPECT_THAT(described(source->pages()), ElementsAre(u"1 1.jpg"_s, u"3 3.jpg"_s));
    EXPECT_EQ(described(source->normalPages()), described(source->pages()));
    EXPECT_NE(source->normalPages().front(), source->pages().front());

    const PageReport& report = source->pageReports().at(1);
    EXPECT_EQ(report.pageNumber, 3);
    EXPECT_EQ(report.picture.width, 1224);
    EXPECT_EQ(report.picture.height, 1584);
    EXPECT_EQ(report.picture.bytes, QFileInfo(source->pages().at(1)->pageFilePath()).size());
}

TEST_F(FlashPageSourcePDFTest, TellsOfEachPageAndThenOfEachNormalPage)
{
    const auto source = open(u"ALL"_s);
    const ProgressRecorder progress;
    source->generatePages();
    source->generateNormalPages();
    EXPECT_THAT(progress.lines(),
        ElementsAre(u"geneatePage 1/3"_s, u"geneatePage 2/3"_s, u"geneatePage 3/3"_s,
            u"geneateNormalPage 1/3"_s, u"geneateNormalPage 2/3"_s, u"geneateNormalPage 3/3"_s));
}

TEST_F(FlashPageSourcePDFTest, StoppingKeepsThePagesDrawnAndNothingThatWasDrawnAhead)
{
    const auto source = open(u"ALL"_s, 9);
    const ProgressRecorder progress([&](const QString& line) {
        if (line == u"geneatePage 2/9"_s)
            source->setStop(true);
    });
    source->generatePages();
    source->generateNormalPages();
    EXPECT_THAT(described(source->pages()), ElementsAre(u"1 1.jpg"_s, u"2 2.jpg"_s));
    EXPECT_TRUE(source->normalPages().empty());
    EXPECT_EQ(progress.lines().size(), 2);
    EXPECT_THAT(workFiles(*source), ElementsAre(u"1.jpg"_s, u"2.jpg"_s));

    source->setStop(false);
    source->generateNormalPages();
    EXPECT_THAT(progress.lines().mid(2),
        ElementsAre(u"geneateNormalPage 1/9"_s, u"geneateNormalPage 2/9"_s));
}

TEST_F(FlashPageSourcePDFTest, NumbersThatTheDocumentDoesNotHaveStayWithoutAFile)
{
    const auto source = open(u"0,2,9-12"_s);
    const LogCapture log;
    source->generatePages();
    EXPECT_THAT(described(source->pages()),
        ElementsAre(u"0 0.jpg missing"_s, u"2 2.jpg"_s, u"9 9.jpg missing"_s,
            u"10 10.jpg missing"_s, u"11 11.jpg missing"_s, u"12 12.jpg missing"_s));
    EXPECT_EQ(source->pageReports().front().picture.problem, u"the document has no such page"_s);
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_THAT(log.lines().first().toStdString(),
        HasSubstr("a 100%1.pdf has 3 pages; the range 0,2,9-12 asks for 5 that it does not have"));
}

TEST_F(FlashPageSourcePDFTest, ADocumentThatCannotBeOpenedGivesPagesWithoutFilesAndAReason)
{
    const LogCapture log;
    FlashPageSourcePDF source(u"/no/such.pdf"_s, u"1-2"_s, dialogDPI, bestQuality);
    source.generatePages();
    EXPECT_EQ(source.document(), nullptr);
    EXPECT_EQ(source.openResult().error, PDFOpenError::Missing);
    EXPECT_THAT(described(source.pages()), ElementsAre(u"1 1.swf missing"_s, u"2 2.swf missing"_s));
    EXPECT_FALSE(source.pageReports().at(1).picture.written);
    EXPECT_EQ(log.lines().size(), 1);

    FlashPageSourcePDF all(u"/no/such.pdf"_s, u"ALL"_s, dialogDPI, bestQuality);
    all.generatePages();
    EXPECT_TRUE(all.pages().empty());
}

TEST_F(FlashPageSourcePDFTest, APageThatFailsCostsOnlyItself)
{
    PDFBuilder builder;
    for (int i = 0; i < 3; ++i)
        builder.addPage();
    builder.replaceObject(builder.pageObject(1), "null");
    const QString path = writeTestFile(iFolder.filePath(u"bad 100%1.pdf"_s), builder.build());
    const LogCapture log;
    FlashPageSourcePDF source(path, u"ALL"_s, dialogDPI, bestQuality);
    source.generatePages();
    source.generateNormalPages();
    EXPECT_THAT(described(source.normalPages()),
        ElementsAre(u"1 1.jpg"_s, u"2 2.jpg missing"_s, u"3 3.jpg"_s));
    const QString problem = source.pageReports().at(1).picture.problem;
    EXPECT_FALSE(problem.isEmpty());
    EXPECT_THAT(log.lines(),
        ElementsAre(u"WARN PDFImageRep: "_s + path + u": no picture of page 2: "_s + problem));
}

TEST_F(FlashPageSourcePDFTest, AReadySWFPageIsTakenInsteadOfDrawing)
{
    const auto source = open(u"ALL"_s);
    const QString folder = source->toPageConverter()->converterWorkFolder();
    writeTestFile(folder + u"/2.swf"_s, "FWS");
    source->generatePages();
    EXPECT_THAT(described(source->pages()), ElementsAre(u"1 1.jpg"_s, u"2 2.swf"_s, u"3 3.jpg"_s));
    EXPECT_THAT(workFiles(*source), ElementsAre(u"1.jpg"_s, u"2.swf"_s, u"3.jpg"_s));
}

TEST_F(FlashPageSourcePDFTest, EveryQualityBelowTheBestIsTheStrongestCompression)
{
    const auto bytesAt = [this](qint32 quality) {
        const auto source = open(u"1"_s, 1, quality);
        source->generatePages();
        return source->pageReports().at(0).picture.bytes;
    };
    const qint64 strongest = bytesAt(25);
    EXPECT_GT(strongest, 0);
    EXPECT_EQ(bytesAt(85), strongest);
    EXPECT_GT(bytesAt(bestQuality), strongest);
}

TEST_F(FlashPageSourcePDFTest, ThePageFilesLiveAsLongAsTheSource)
{
    auto source = open(u"1"_s);
    source->generatePages();
    const QString folder = source->toPageConverter()->converterWorkFolder();
    EXPECT_TRUE(folder.startsWith(u"/tmp/Leafcast"_s));
    EXPECT_TRUE(QFile::exists(source->pages().front()->pageFilePath()));
    source.reset();
    EXPECT_FALSE(QFile::exists(folder));
}

TEST_F(FlashPageSourcePDFTest, FindsPagesByPositionAndNormalOnesByNumberUntilStopped)
{
    const auto source = open(u"3,5"_s, 1);
    source->generatePages();
    source->generateNormalPages();
    source->generateNormalPages();
    EXPECT_EQ(source->normalPages().size(), 2u);
    EXPECT_EQ(source->getPageAtIndex(1)->pageIndex(), 5);
    EXPECT_EQ(source->getPageAtIndex(2), nullptr);
    EXPECT_EQ(source->getNormalPageAtIndex(5)->pageIndex(), 5);
    EXPECT_EQ(source->getNormalPageAtIndex(1), nullptr);
    source->setStop(true);
    EXPECT_EQ(source->getNormalPageAtIndex(5), nullptr);
}
