// SPDX-License-Identifier: MIT
#include "FakeServiceTest.h"

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFDocumentFailuresTest : public FakeServiceTest {
protected:
    std::shared_ptr<PDFDocument> openedThat(const QByteArray& behaves, int seconds = 1000) const
    {
        return PDFDocument::open(documentThat(behaves, seconds)).document;
    }

    static QString textOf(const PDFDocument& document, int page)
    {
        const std::vector<PDFTextLine> lines = document.textOfPage(page);
        return lines.empty() ? QString() : lines.front().text;
    }

    void expectOpenToFail(const QByteArray& behaves, const QString& reason) const
    {
        const PDFDocument::OpenResult result = PDFDocument::open(documentThat(behaves, 1));
        EXPECT_TRUE(result.reason.contains(reason)) << result.reason.toStdString();
        EXPECT_TRUE(result.error == PDFOpenError::ServiceFailed && childProcesses().empty());
    }
};

TEST_F(PDFDocumentFailuresTest, EachWayToFailCostsOneAnswerAndOneLogLine)
{
    const auto document = openedThat(
        R"({"pages":9,"1":"crash","2":"garbage","3":"long","4":"refuse","5":"hang"})", 1);
    for (int page = 0; page < 7; ++page)
        EXPECT_EQ(textOf(*document, page),
            page == 0 || page == 6 ? u"text of page %1"_s.arg(page) : QString());

    ASSERT_EQ(iLog.lines().size(), 5);
    EXPECT_TRUE(iLog.lines().at(0).contains(u"text of page 2: the PDF service crashed"_s));
    EXPECT_TRUE(iLog.lines().at(4).endsWith(u"longer than a second"_s));
}

TEST_F(PDFDocumentFailuresTest, APageThatCrashesDoesNotTakeItsNeighboursAlong)
{
    const auto document = openedThat(R"({"pages":300,"0":"crash","129":"refuse"})");
    for (const int lost : { 0, 129, 300, -1 })
        EXPECT_FALSE(document->pageAtIndex(lost)) << lost;
    for (const int page : { 1, 127, 128, 299, 5 })
        EXPECT_EQ(document->pageAtIndex(page)->label(), QString::number(page));
    EXPECT_EQ(iLog.lines().size(), 2);
}

TEST_F(PDFDocumentFailuresTest, AServiceKilledBetweenTwoQuestionsIsNotNoticed)
{
    std::shared_ptr<PDFDocument> document;
    std::thread([&] { document = openedThat(R"({"pages":3})"); }).join();
    ASSERT_EQ(childProcesses().size(), 1U);
    kill(childProcesses().front(), SIGKILL);
    siginfo_t ending;
    waitid(P_PID, static_cast<id_t>(childProcesses().front()), &ending, WEXITED | WNOWAIT);

    EXPECT_EQ(textOf(*document, 0), u"text of page 0"_s);
    EXPECT_TRUE(iLog.lines().isEmpty());
    EXPECT_EQ(childProcesses().size(), 1U);
}

TEST_F(PDFDocumentFailuresTest, AServiceShortOfMemoryIsReplaced)
{
    const auto document = openedThat(R"({"pages":3,"1":"memory"})");
    EXPECT_TRUE(textOf(*document, 1).isEmpty());
    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(textOf(*document, 2), u"text of page 2"_s);
}

TEST_F(PDFDocumentFailuresTest, ADocumentOrServiceThatFailsAtOnceSaysWhy)
{
    expectOpenToFail(R"({"open":"crash"})", u"crashed over it (signal 9)"_s);
    expectOpenToFail(R"({"open":"hang"})", u"longer than a second"_s);
    useService("/bin/ls");
    expectOpenToFail("{}", u"could not be started: /bin/ls: unrecognized option"_s);
    useService(QFile::encodeName(writeTestFile(at(u"text"_s), "no program")));
    QFile::setPermissions(at(u"text"_s), QFile::ReadOwner | QFile::ExeOwner);
    expectOpenToFail("{}", u"could not be started: Exec format error"_s);
}
