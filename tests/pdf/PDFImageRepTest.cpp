// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"

#include "FakeServiceTest.h"

#include <numeric>
#include <QMap>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFImageRepTest : public FakeServiceTest {
protected:
    PDFImageRep::Options options() const { return { .workFolder = iFolder.path(), .workers = 3 }; }

    static std::vector<int> firstPages(int count)
    {
        std::vector<int> pages(static_cast<size_t>(count));
        std::iota(pages.begin(), pages.end(), 0);
        return pages;
    }

    /// Its own picture, or none and a problem that holds the given words.
    void expectPage(PDFImageRep& pictures, int page, const QString& problem = {}) const
    {
        const QString path = at(u"%1.jpg"_s.arg(page + 1));
        const RenderedPage drawn = pictures.drawPage(page, path);
        EXPECT_EQ(drawn.written, problem.isEmpty()) << page;
        EXPECT_TRUE(drawn.problem.contains(problem)) << drawn.problem.toStdString();
        EXPECT_EQ(readTestFile(path),
            drawn.written ? "picture of page " + QByteArray::number(page) : QByteArray());
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

TEST_F(PDFImageRepTest, PagesAreTheirOwnThoughLaterOnesAreReadyFirstAndFailAlone)
{
    const QMap<int, QString> problems{ { 2, u"crashed"_s }, { 3, u"crashed"_s }, { 5, u"longer"_s },
        { 6, u"makes no sense"_s }, { 8, u"refused"_s } };
    const auto source = documentThat(
        R"({"0":"slow","2":"crash","3":"crash","5":"hang","6":"garbage","8":"refuse"})", 1);
    PDFImageRep pictures(source, options());
    pictures.plan(firstPages(10));
    for (const int page : firstPages(10))
        expectPage(pictures, page, problems.value(page));

    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(iLog.lines().size(), 5);
    EXPECT_EQ(leftovers().size(), 5);
}

TEST_F(PDFImageRepTest, LooksAheadOnlySoFar)
{
    PDFImageRep pictures(documentThat("{}"), { .workFolder = iFolder.path(), .workers = 1 });
    pictures.plan(firstPages(1000));
    expectPage(pictures, 0);
    waitForHiddenPicture(u"5.jpg"_s);
    expectPage(pictures, 2000); // not planned, and long enough for a pool without a limit

    EXPECT_LE(hiddenPictures().size(), 5);
}

TEST_F(PDFImageRepTest, AbandoningAndDestructionKillWhatIsDrawnAndLeaveNothing)
{
    const qsizetype threads = threadCount();
    const auto expectNothingLeft = [&](const QStringList& pictures) {
        EXPECT_TRUE(childProcesses().empty());
        EXPECT_EQ(threadCount(), threads);
        EXPECT_EQ(leftovers(), pictures);
    };
    {
        PDFImageRep pictures(documentThat(R"({"1":"hang","2":"hang","3":"hang"})"), options());
        pictures.plan(firstPages(6));
        expectPage(pictures, 0);
        for (const QString& name : { u"1.jpg.half"_s, u"2.jpg.half"_s, u"3.jpg.half"_s })
            waitForHiddenPicture(name);
        pictures.abandonPlan();
        expectNothingLeft({ u"1.jpg"_s });
        pictures.plan({ 5, 1, 2 });
        expectPage(pictures, 5);
    }
    expectNothingLeft({ u"1.jpg"_s, u"6.jpg"_s });
}

TEST_F(PDFImageRepTest, PagesOutsideThePlanAreDrawnDirectly)
{
    PDFImageRep pictures(documentThat(R"({"9":"crash"})"), options());
    expectPage(pictures, 7);
    pictures.plan({ 0, 1, 2, -1, 3, 4 });
    for (const int page : { 0, 3, 1 })
        expectPage(pictures, page);
    expectPage(pictures, 9, u"crashed"_s);
    expectPage(pictures, -1, u"no such page"_s);
    expectPage(pictures, 4);
    EXPECT_EQ(leftovers().size(), 5);
}

TEST_F(PDFImageRepTest, AServiceThatCannotBeStartedFailsEveryPage)
{
    for (const char* program : { "/bin/false", "/bin/ls", "/bin/cat" }) {
        useService(program);
        PDFImageRep pictures(documentThat("{}"), options());
        pictures.plan(firstPages(10));
        for (const int page : firstPages(10))
            expectPage(pictures, page, u"the PDF service"_s);
        EXPECT_TRUE(leftovers().isEmpty());
    }
}

TEST_F(PDFImageRepTest, AFolderThatCannotBeWrittenFailsThePageAndSaysSo)
{
    const PDFDocument::Source source = documentThat("{}");
    PDFImageRep noWorkFolder(source, { .workFolder = at(u"document/x"_s) });
    noWorkFolder.plan({ 0 });
    expectPage(noWorkFolder, 0, u"work folder"_s);

    PDFImageRep pictures(source, options());
    pictures.plan({ 0 });
    EXPECT_EQ(pictures.drawPage(0, at(u"document/1.jpg"_s)).problem,
        u"its picture can't be written: Not a directory"_s);
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST(JPEGSettings, StepOverQualitiesThatTurnWhiteGrey)
{
    for (const auto& [factor, quality] : std::initializer_list<std::pair<double, int>>{
             { -3.0, 30 }, { 0.05, 35 }, { 0.07, 35 }, { 0.09, 39 }, { 0.17, 46 }, { 0.24, 46 },
             { 0.49, 60 }, { 0.5, 63 }, { 1.0, 95 }, { 7.0, 95 } }) {
        EXPECT_EQ(jpegSettings(factor).quality, quality) << factor;
        EXPECT_EQ(jpegSettings(factor).fullChroma, factor >= 0.5) << factor;
    }
}
