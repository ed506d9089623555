// SPDX-License-Identifier: MIT
#include "FakeServiceTest.h"

#include <csignal>

using namespace Qt::StringLiterals;
using namespace leafcast;

class PDFDocumentFailuresTest : public FakeServiceTest {
protected:
    static std::shared_ptr<PDFDocument> opened(const PDFDocument::Source& source)
    {
        const PDFDocument::OpenResult result = PDFDocument::open(source);
        EXPECT_EQ(result.error, PDFOpenError::None) << result.reason.toStdString();
        return result.document;
    }

    static QString textOf(const PDFDocument& document, int page)
    {
        const std::vector<PDFTextLine> lines = document.textOfPage(page);
        return lines.empty() ? QString() : lines.front().text;
    }

    void expectOpenToFail(const PDFDocument::Source& source, const QString& reason)
    {
        const PDFDocument::OpenResult result = PDFDocument::open(source);
        EXPECT_FALSE(result.document);
        EXPECT_EQ(result.error, PDFOpenError::ServiceFailed);
        EXPECT_TRUE(result.reason.contains(reason)) << result.reason.toStdString();
        EXPECT_TRUE(childProcesses().empty());
    }
};

TEST_F(PDFDocumentFailuresTest, EachWayToFailCostsOneAnswerAndOneLogLine)
{
    const auto document = opened(documentThat(
        R"({"pages":9,"1":"crash","2":"garbage","3":"long","4":"refuse","5":"hang"})", 1));

    for (int page = 0; page < 7; ++page)
        EXPECT_EQ(textOf(*document, page),
            page == 0 || page == 6 ? u"text of page %1"_s.arg(page) : QString());

    ASSERT_EQ(iLog.lines().size(), 5);
    EXPECT_TRUE(iLog.lines().at(0).contains(u"text of page 2: the PDF service crashed"_s));
    EXPECT_TRUE(iLog.lines().at(3).endsWith(u"it is refused"_s));
    EXPECT_TRUE(iLog.lines().at(4).endsWith(u"longer than a second"_s));
}

TEST_F(PDFDocumentFailuresTest, APageThatCrashesDoesNotTakeItsNeighboursAlong)
{
    const auto document = opened(documentThat(R"({"pages":300,"0":"crash","129":"refuse"})"));

    EXPECT_FALSE(document->pageAtIndex(0));
    EXPECT_EQ(document->pageAtIndex(1)->label(), u"1"_s);
    EXPECT_FALSE(document->pageAtIndex(129));
    EXPECT_EQ(document->pageAtIndex(299)->label(), u"299"_s);
    EXPECT_FALSE(document->pageAtIndex(300));
    EXPECT_FALSE(document->pageAtIndex(-1));
    EXPECT_EQ(iLog.lines().size(), 2);
}

TEST_F(PDFDocumentFailuresTest, AServiceKilledBetweenTwoQuestionsIsNotNoticed)
{
    const auto document = opened(documentThat(R"({"pages":3})"));
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
    const auto document = opened(documentThat(R"({"pages":3,"1":"memory"})"));
    const std::vector<pid_t> opener = childProcesses();

    EXPECT_TRUE(textOf(*document, 1).isEmpty());
    EXPECT_TRUE(childProcesses().empty());
    EXPECT_EQ(textOf(*document, 2), u"text of page 2"_s);
    EXPECT_NE(childProcesses(), opener);
}

TEST_F(PDFDocumentFailuresTest, ADocumentThatCannotBeOpenedSaysWhy)
{
    expectOpenToFail(documentThat(R"({"open":"crash"})"), u"crashed over it (signal 9)"_s);
    expectOpenToFail(documentThat(R"({"open":"hang"})", 1), u"longer than a second"_s);
    expectOpenToFail(documentThat(R"({"open":"garbage"})"), u"makes no sense"_s);
}

TEST_F(PDFDocumentFailuresTest, AServiceThatCannotBeStartedSaysWhy)
{
    const PDFDocument::Source source = documentThat("{}");
    useService("/bin/false");
    expectOpenToFail(source, u"crashed over it (exit status 1)"_s);
    useService("/bin/ls");
    expectOpenToFail(source, u"could not be started: /bin/ls: unrecognized option"_s);
    useService(QFile::encodeName(writeTestFile(at(u"text"_s), "no program")));
    QFile::setPermissions(at(u"text"_s), QFile::ReadOwner | QFile::ExeOwner);
    expectOpenToFail(source, u"could not be started: Exec format error"_s);
}
