// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"

#include "FakeServiceTest.h"

#include <csignal>
#include <numeric>
#include <QDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFImageRepTest : public FakeServiceTest {
protected:
    PDFImageRep::Options options() const { return { .workFolder = iFolder.path(), .workers = 3 }; }

    QString pathOf(int page) const { return at(u"%1.jpg"_s.arg(page + 1)); }

    RenderedPage draw(PDFImageRep& pictures, int page) const
    {
        return pictures.drawPage(page, pathOf(page));
    }

    void expectPicture(PDFImageRep& pictures, int page) const
    {
        const RenderedPage drawn = draw(pictures, page);
        EXPECT_TRUE(drawn.written) << drawn.problem.toStdString();
        EXPECT_EQ(readTestFile(pathOf(page)), "picture of page " + QByteArray::number(page));
    }

    void expectNoPicture(PDFImageRep& pictures, int page, const QString& problem) const
    {
        const RenderedPage drawn = draw(pictures, page);
        EXPECT_FALSE(drawn.written);
        EXPECT_TRUE(drawn.problem.contains(problem)) << drawn.problem.toStdString();
        EXPECT_FALSE(QFile::exists(pathOf(page)));
    }

    /// What the workers have drawn, or begun to draw, under hidden names.
    QStringList hiddenPictures() const
    {
        const QStringList folders = leftovers().filter(u".drawing"_s);
        return folders.isEmpty() ? QStringList() : QDir(at(folders.first())).entryList(QDir::Files);
    }

    void waitForHiddenPicture(const QString& name) const
    {
        while (!hiddenPictures().contains(name))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
};

TEST_F(PDFImageRepTest, PagesAreTheirOwnThoughLaterOnesAreReadyFirst)
{
    PDFImageRep pictures(documentThat(R"({"0":"slow","5":"slow"})"), options());
    pictures.plan({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14 });

    for (int page = 0; page < 15; ++page)
        expectPicture(pictures, page);

    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(leftovers().size(), 15);
}

TEST_F(PDFImageRepTest, PagesThatFailDoSoAlone)
{
    PDFImageRep pictures(
        documentThat(
            R"({"2":"crash","3":"crash","5":"hang","6":"garbage","8":"refuse","11":"crash"})", 1),
        options());
    pictures.plan({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 });

    for (const int page : { 0, 1 })
        expectPicture(pictures, page);
    expectNoPicture(pictures, 2, u"crashed"_s);
    expectNoPicture(pictures, 3, u"crashed"_s);
    expectPicture(pictures, 4);
    expectNoPicture(pictures, 5, u"longer than a second"_s);
    expectNoPicture(pictures, 6, u"makes no sense"_s);
    expectPicture(pictures, 7);
    expectNoPicture(pictures, 8, u"refused"_s);
    for (const int page : { 9, 10 })
        expectPicture(pictures, page);
    expectNoPicture(pictures, 11, u"crashed"_s);

    EXPECT_EQ(iLog.lines().size(), 6);
    EXPECT_EQ(leftovers().size(), 6);
}

TEST_F(PDFImageRepTest, AWorkerKilledFromOutsideCostsItsPageOnly)
{
    PDFImageRep pictures(
        documentThat(R"({"0":"hang"})"), { .workFolder = iFolder.path(), .workers = 1 });
    pictures.plan({ 0, 1 });
    waitForHiddenPicture(u"0.jpg.half"_s);
    kill(childProcesses().front(), SIGKILL);

    expectNoPicture(pictures, 0, u"signal 9"_s);
    expectPicture(pictures, 1);
}

TEST_F(PDFImageRepTest, LooksAheadOnlySoFar)
{
    PDFImageRep pictures(documentThat("{}"), { .workFolder = iFolder.path(), .workers = 1 });
    std::vector<int> plan(1000);
    std::iota(plan.begin(), plan.end(), 0);
    pictures.plan(plan);
    expectPicture(pictures, 0);
    waitForHiddenPicture(u"5.jpg"_s);
    expectPicture(pictures, 2000); // not planned, and long enough for a pool without a limit

    EXPECT_LE(hiddenPictures().size(), 5);
}

TEST_F(PDFImageRepTest, AbandoningKillsWhatIsDrawnAndLeavesNothing)
{
    const qsizetype threads = threadCount();
    PDFImageRep pictures(documentThat(R"({"1":"hang","2":"hang","3":"hang"})"), options());
    pictures.plan({ 0, 1, 2, 3, 4, 5 });
    expectPicture(pictures, 0);
    for (const QString& name : { u"1.jpg.half"_s, u"2.jpg.half"_s, u"3.jpg.half"_s })
        waitForHiddenPicture(name);

    pictures.abandonPlan();

    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(threadCount(), threads);
    EXPECT_EQ(leftovers(), QStringList{ u"1.jpg"_s });
    pictures.plan({ 5, 6 });
    expectPicture(pictures, 5);
}

TEST_F(PDFImageRepTest, DestructionLeavesNothingEither)
{
    const qsizetype threads = threadCount();
    {
        PDFImageRep pictures(documentThat(R"({"0":"hang","1":"hang"})"), options());
        pictures.plan({ 0, 1, 2, 3 });
    }
    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(threadCount(), threads);
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(PDFImageRepTest, PagesOutsideThePlanAreDrawnDirectly)
{
    PDFImageRep pictures(documentThat(R"({"9":"crash"})"), options());
    expectPicture(pictures, 7);
    pictures.plan({ 0, 1, 2, -1, 3, 4 });
    expectPicture(pictures, 0);
    expectPicture(pictures, 3);
    expectPicture(pictures, 1);
    expectNoPicture(pictures, 9, u"crashed"_s);
    expectNoPicture(pictures, -1, u"no such page"_s);
    expectPicture(pictures, 10);
    expectPicture(pictures, 4);

    EXPECT_EQ(leftovers().size(), 6);
}

TEST_F(PDFImageRepTest, AServiceThatCannotBeStartedFailsEveryPage)
{
    for (const char* program : { "/bin/false", "/bin/ls", "/bin/cat" }) {
        useService(program);
        PDFImageRep pictures(documentThat("{}"), options());
        pictures.plan({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 });
        for (int page = 0; page < 10; ++page)
            expectNoPicture(pictures, page, u"the PDF service"_s);
        EXPECT_TRUE(leftovers().isEmpty());
    }
}

TEST_F(PDFImageRepTest, AFolderThatCannotBeWrittenFailsThePageAndSaysSo)
{
    const PDFDocument::Source source = documentThat("{}");
    PDFImageRep noWorkFolder(source, { .workFolder = at(u"document/x"_s) });
    noWorkFolder.plan({ 0 });
    expectNoPicture(noWorkFolder, 0, u"work folder"_s);

    PDFImageRep pictures(source, options());
    pictures.plan({ 0 });
    const RenderedPage page = pictures.drawPage(0, at(u"document/1.jpg"_s));
    EXPECT_EQ(page.problem, u"its picture can't be written: Not a directory"_s);
    EXPECT_TRUE(leftovers().isEmpty());
}
