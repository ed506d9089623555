// SPDX-License-Identifier: MIT
#include "pages/import/ImportPDFOperation.h"

#include "pages/ProgressRecorder.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

class ImportPDFOperationTest : public testing::Test {
protected:
    ImportPDFOperationTest() { writeTestFile(iPath, PDFBuilder(6).build()); }

    std::unique_ptr<ImportPDFOperation> operation(const QString& range)
    {
        auto made = std::make_unique<ImportPDFOperation>(iPath, range, 144, 25);
        made->setImportLinks(true);
        made->setImportBookmarks(true);
        return made;
    }

    /// Runs on a worker; what there is then of pages, links and outline, as "PLO".
    static QString resultsOf(ImportPDFOperation& import)
    {
        std::jthread([&import] { import.main(); }).join();
        EXPECT_TRUE(import.isFinished());
        return QString(import.flashPageSource() ? u"P"_s : QString())
            + (import.flashPagesAnnotation() ? u"L"_s : QString())
            + (import.flashOutline() ? u"O"_s : QString());
    }

    QTemporaryDir iFolder;
    QString iPath = iFolder.filePath(u"book.pdf"_s);
};

} // namespace

TEST_F(ImportPDFOperationTest, BringsWhatIsAskedFor)
{
    const auto all = operation(u"1-2"_s);
    EXPECT_EQ(resultsOf(*all), u"PLO"_s);
    EXPECT_EQ(all->flashPageSource()->normalPages().size(), 2u);
    ImportPDFOperation pagesOnly(iPath, u"1"_s, 144, 25);
    EXPECT_EQ(resultsOf(pagesOnly), u"P"_s);
}

TEST_F(ImportPDFOperationTest, CancelledItStopsBeforeTheNextPageAndLeavesNothing)
{
    const auto import = operation(u"ALL"_s);
    QString workFolder;
    const ProgressRecorder progress{ [&](const QString& line) {
        if (line != u"geneatePage 2/6"_s)
            return;
        workFolder = import->flashPageSource()->toPageConverter()->converterWorkFolder();
        import->cancel();
    } };
    EXPECT_EQ(resultsOf(*import), u""_s);
    EXPECT_FALSE(workFolder.isEmpty());
    EXPECT_FALSE(QFile::exists(workFolder));
    const auto early = operation(u"ALL"_s);
    early->cancel();
    EXPECT_EQ(resultsOf(*early), u""_s);
    EXPECT_EQ(progress.lines, QStringList({ u"geneatePage 1/6"_s, u"geneatePage 2/6"_s }));
}

TEST_F(ImportPDFOperationTest, AStepThatFailsCostsOnlyItsOwnResult)
{
    const auto tooLong = operation(u"1-2000000"_s);
    EXPECT_EQ(resultsOf(*tooLong), u"O"_s);
    EXPECT_TRUE(tooLong->pagesProblem().startsWith(u"ERROR_PAGE_RANGE_TOO_LONG: "_s));
    const ProgressRecorder broken{ [](const QString&) { throw std::runtime_error("broken"); } };
    EXPECT_EQ(resultsOf(*operation(u"2-3"_s)), u"LO"_s);
}
