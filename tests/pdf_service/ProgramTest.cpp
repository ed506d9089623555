// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/MessageStream.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <algorithm>
#include <csignal>
#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <sys/resource.h>

using namespace leafcast;
using namespace Qt::StringLiterals;

namespace {

const QString Program = qEnvironmentVariable("LEAFCAST_PDF_SERVICE");
constexpr int Patience = 60'000; // ms, far more than anything here takes

struct Outcome {
    int exitCode;
    QList<QJsonObject> answers;
    QByteArray errors;
};

Outcome run(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(Program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(Patience));
    QList<QJsonObject> answers;
    while (process.canReadLine())
        answers += QJsonDocument::fromJson(process.readLine()).object();
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, answers,
        process.readAllStandardError() };
}

// A page that draws a form ten times, which draws another one ten times, and so on.
PDFBuilder endlessPDF()
{
    PDFBuilder pdf;
    const QByteArray form = "/Type /XObject /Subtype /Form /BBox [0 0 9 9]";
    QByteArray forms = "/XObject << /F 0 0 R >>";
    for (int i = 0; i <= 12; ++i) {
        const QByteArray content = i == 0 ? "0 0 9 9 re f" : QByteArray("/F Do ").repeated(10);
        const int number = pdf.addStream(form + " /Resources << " + forms + " >>", content);
        forms = "/XObject << /F " + PDFBuilder::reference(number) + " >>";
    }
    pdf.addPage({ .content = "/F Do", .resources = forms });
    return pdf;
}

class PDFServiceProgram : public testing::Test {
protected:
    QByteArray openAndRender(const PDFBuilder& pdf) const
    {
        const QString path = writeTestFile(iFolder.filePath(u"document.pdf"_s), pdf.build());
        return R"({"id":1,"op":"open","path":")" + path.toUtf8() + "\"}\n"
            + R"({"id":2,"op":"render","page":0,"scale":1,"quality":30,"chroma":"420",)"
            + R"("maxBytes":1e9,"path":")" + iFolder.filePath(u"page.jpg"_s).toUtf8() + "\"}\n";
    }

    QTemporaryDir iFolder;
};

} // namespace

TEST_F(PDFServiceProgram, AnswersEachLineButOneTooLongAndEndsWithItsInput)
{
    PDFBuilder pdf;
    pdf.addPage({ .content = "/Nonsense gs (unbalanced" });
    const QByteArray tooLong(service::MessageStream::LongestRequest * 3, 'x');
    const Outcome result = run({}, openAndRender(pdf) + "\n" + tooLong + "\n{\"id\":5}\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, QByteArray());
    ASSERT_EQ(result.answers.size(), 5);
    EXPECT_EQ(result.answers[0].value(u"pages").toInt(), 1);
    EXPECT_EQ(result.answers[1].value(u"id").toInt(), 2);
    EXPECT_EQ(result.answers[2].value(u"error").toString(), u"request"_s);
    EXPECT_EQ(result.answers[3].value(u"error").toString(), u"request"_s);
    EXPECT_EQ(result.answers[4].value(u"id").toInt(), 5);
}

TEST_F(PDFServiceProgram, StepsBackBehindOtherProgramsWhenItIsTold)
{
    QProcess service;
    service.start(Program, { u"--nice"_s, u"7"_s });
    service.write("{\"id\":1}\n");
    ASSERT_TRUE(service.waitForReadyRead());
    const int own = getpriority(PRIO_PROCESS, 0);
    const int most = 19;
    EXPECT_EQ(
        getpriority(PRIO_PROCESS, static_cast<id_t>(service.processId())), std::min(own + 7, most));
    service.closeWriteChannel();
    EXPECT_TRUE(service.waitForFinished());
}

TEST_F(PDFServiceProgram, EndsItselfWhenAPageTakesTooMuchTime)
{
    const Outcome result = run({ u"--page-seconds"_s, u"1"_s }, openAndRender(endlessPDF()));
    EXPECT_EQ(result.exitCode, 124);
    EXPECT_EQ(result.answers.size(), 1);
}

TEST_F(PDFServiceProgram, EndsItselfWhenItsParentDies)
{
    const QString requests
        = writeTestFile(iFolder.filePath(u"requests"_s), openAndRender(endlessPDF()));
    QProcess parent;
    parent.start(u"sh"_s,
        { u"-c"_s, u"\"$0\" --page-seconds 600 <\"$1\" >/dev/null & sleep 1; echo $!"_s, Program,
            requests });
    ASSERT_TRUE(parent.waitForFinished(Patience));
    const pid_t worker = parent.readAllStandardOutput().trimmed().toInt();
    ASSERT_GT(worker, 0);
    const QDeadlineTimer deadline(Patience);
    while (::kill(worker, 0) == 0 && !deadline.hasExpired())
        QThread::msleep(50);
    EXPECT_NE(::kill(worker, 0), 0);
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(PDFServiceProgram, KeepsWithinItsMemoryAndLivesOn)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 20'000, 20'000 }, .content = "1 0 0 rg 0 0 9 9 re f" });
    const Outcome result
        = run({ u"--memory-limit"_s, u"300"_s }, openAndRender(pdf) + "{\"id\":3}\n");
    EXPECT_EQ(result.exitCode, 0);
    ASSERT_EQ(result.answers.size(), 3);
    const QJsonObject drawn = result.answers[1];
    EXPECT_EQ(drawn.value(u"error").toString(), QString());
    EXPECT_LT(drawn.value(u"scale").toDouble(), 0.5);
}
#endif
