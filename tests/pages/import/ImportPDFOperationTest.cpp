// SPDX-License-Identifier: MIT
#include "pages/import/ImportPDFOperation.h"

#include "pages/ProgressRecorder.h"
#include "support/LogCapture.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <QTemporaryDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ImportPDFOperationTest : public testing::Test {
protected:
    ImportPDFOperationTest()
    {
        PDFBuilder builder;
        for (int i = 0; i < 6; ++i)
            builder.addPage();
        builder.addPageLink(0, { 60, 700, 180, 740 }, 2);
        builder.setOutline({ { .label = u"One"_s, .target = builder.explicitDestination(0) } });
        writeTestFile(iPath, builder.build());
    }

    std::unique_ptr<ImportPDFOperation> operation(const QString& range)
    {
        auto made = std::make_unique<ImportPDFOperation>(iPath, range, 144, 25);
        made->setImportLinks(true);
        made->setImportBookmarks(true);
        return made;
    }

    static void runOnAWorker(ImportPDFOperation& import)
    {
        std::jthread worker([&import] { import.main(); });
    }

    static void expectNoResults(const ImportPDFOperation& import)
    {
        EXPECT_TRUE(import.isFinished());
        EXPECT_EQ(import.flashPageSource(), nullptr);
        EXPECT_EQ(import.flashPagesAnnotation(), nullptr);
        EXPECT_EQ(import.flashOutline(), nullptr);
    }

    QTemporaryDir iFolder;
    QString iPath = iFolder.filePath(u"book.pdf"_s);
};

} // namespace

TEST_F(ImportPDFOperationTest, BringsPagesLinksAndOutline)
{
    const auto import = operation(u"1-2"_s);
    EXPECT_FALSE(import->isFinished());
    runOnAWorker(*import);
    EXPECT_TRUE(import->isFinished());
    EXPECT_FALSE(import->isCancelled());
    ASSERT_TRUE(import->flashPageSource());
    EXPECT_EQ(import->flashPageSource()->normalPages().size(), 2u);
    const auto links = import->flashPagesAnnotation()->pagesAnnotationsNode();
    EXPECT_EQ(links->selectNodes(u"./pageAnnos/anno/action/pageIndex"_s).size(), 1u);
    EXPECT_EQ(import->flashOutline()->items().size(), 1u);
    EXPECT_TRUE(import->pagesProblem().isEmpty());
}

TEST_F(ImportPDFOperationTest, BringsOnlyThePagesWhenNothingElseIsAskedFor)
{
    ImportPDFOperation import(iPath, u"1"_s, 144, 25);
    const LogCapture log(LogLevel::Debug);
    import.main();
    EXPECT_TRUE(import.flashPageSource());
    EXPECT_EQ(import.flashPagesAnnotation(), nullptr);
    EXPECT_EQ(import.flashOutline(), nullptr);
    EXPECT_THAT(log.lines().filter(u"ImportPDFOperation"_s),
        ElementsAre(u"DEBUG ImportPDFOperation: before generate pages"_s,
            u"DEBUG ImportPDFOperation: after generate pages"_s,
            u"DEBUG ImportPDFOperation: before generateNormalPages"_s,
            u"DEBUG ImportPDFOperation: after generateNormalPages"_s));
}

TEST_F(ImportPDFOperationTest, CancelledBeforeItStartsDoesNothing)
{
    const auto import = operation(u"ALL"_s);
    const ProgressRecorder progress;
    import->cancel();
    runOnAWorker(*import);
    expectNoResults(*import);
    EXPECT_THAT(progress.lines(), IsEmpty());
}

TEST_F(ImportPDFOperationTest, CancelledWhileDrawingStopsBeforeTheNextPageAndLeavesNothing)
{
    const auto import = operation(u"ALL"_s);
    QString workFolder;
    const ProgressRecorder progress([&](const QString& line) {
        if (line != u"geneatePage 2/6"_s)
            return;
        workFolder = import->flashPageSource()->toPageConverter()->converterWorkFolder();
        import->cancel();
    });
    const LogCapture log(LogLevel::Debug);
    runOnAWorker(*import);
    EXPECT_TRUE(import->isCancelled());
    expectNoResults(*import);
    EXPECT_THAT(progress.lines(), ElementsAre(u"geneatePage 1/6"_s, u"geneatePage 2/6"_s));
    EXPECT_EQ(log.lines().filter(u"ImportPDFOperation"_s).last(),
        u"DEBUG ImportPDFOperation: import pdf is cancelled"_s);
    EXPECT_THAT(log.lines().filter(u"FlashPagesAnnotationsPDF"_s), IsEmpty());
    EXPECT_THAT(log.lines().filter(u"FlashOutlinePDF"_s), IsEmpty());
    EXPECT_FALSE(workFolder.isEmpty());
    EXPECT_FALSE(QFile::exists(workFolder));
}

TEST_F(ImportPDFOperationTest, AStepThatFailsCostsOnlyItsOwnResult)
{
    const auto import = operation(u"1-2000000"_s);
    const LogCapture log;
    runOnAWorker(*import);
    EXPECT_EQ(import->flashPageSource(), nullptr);
    EXPECT_EQ(import->flashPagesAnnotation(), nullptr);
    EXPECT_TRUE(import->flashOutline());
    const QString reason
        = u"ERROR_PAGE_RANGE_TOO_LONG: the page range names more than 1000000 pages"_s;
    EXPECT_EQ(import->pagesProblem(), reason);
    EXPECT_THAT(log.lines(),
        ElementsAre(
            u"ERROR ImportPDFOperation: Run Import PDF Operation error,import pages:"_s + reason,
            u"ERROR ImportPDFOperation: Run Import PDF Operation error,import links:"_s + reason));
}

TEST_F(ImportPDFOperationTest, AFailureInTheMiddleOfThePagesDropsThemAndGoesOn)
{
    const auto import = operation(u"2-3"_s);
    const ProgressRecorder progress([](const QString& line) {
        if (line == u"geneatePage 1/2"_s)
            throw std::runtime_error("broken observer");
    });
    const LogCapture log;
    runOnAWorker(*import);
    EXPECT_EQ(import->flashPageSource(), nullptr);
    ASSERT_TRUE(import->flashPagesAnnotation());
    EXPECT_EQ(
        import->flashPagesAnnotation()->pagesAnnotationsNode()->children(u"pageAnnos"_s).size(),
        2u);
    EXPECT_THAT(log.lines(),
        ElementsAre(
            u"ERROR ImportPDFOperation: Run Import PDF Operation error,import pages:broken observer"_s));
}
