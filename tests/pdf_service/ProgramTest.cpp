// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/MessageStream.h"
#include "support/PDFBuilder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QDeadlineTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

using namespace leafcast;
using namespace Qt::StringLiterals;

namespace {

const QString Program = qEnvironmentVariable("LEAFCAST_PDF_SERVICE");
constexpr int Patience = 60'000; // ms, far more than anything here takes

struct Outcome {
    int exitCode = -1;
    QList<QByteArray> answers;
    QByteArray errors;
};

Outcome run(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(Program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(Patience));
    QList<QByteArray> answers = process.readAllStandardOutput().split('\n');
    EXPECT_EQ(answers.takeLast(), QByteArray()); // what follows the last line end
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, answers,
        process.readAllStandardError() };
}

QJsonObject object(const QByteArray& line)
{
    return QJsonDocument::fromJson(line).object();
}

// A page that draws a form ten times, which draws another one ten times, and so on.
QByteArray endlessPDF()
{
    PDFBuilder pdf;
    int form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9]", "0 0 9 9 re f");
    for (int i = 0; i < 12; ++i)
        form = pdf.addStream(
            "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /Resources << /XObject << /F "
                + PDFBuilder::reference(form) + " >> >>",
            QByteArray("/F Do ").repeated(10));
    pdf.addPage({ .content = "/F Do",
        .resources = "/XObject << /F " + PDFBuilder::reference(form) + " >>" });
    return pdf.build();
}

class PDFServiceProgram : public testing::Test {
protected:
    QByteArray openRequest(const QByteArray& pdf)
    {
        QFile file(iFolder.filePath(u"document.pdf"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(pdf);
        return R"({"id":1,"op":"open","path":")" + file.fileName().toUtf8() + "\"}\n";
    }

    QByteArray renderRequest() const
    {
        return R"({"id":2,"op":"render","page":0,"scale":1,"quality":30,"chroma":"420","maxBytes":1e9,"path":")"
            + iFolder.filePath(u"page.jpg"_s).toUtf8() + "\"}\n";
    }

    QTemporaryDir iFolder;
};

bool isAlive(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), 0) == 0;
}

} // namespace

TEST_F(PDFServiceProgram, AnswersEachLineAndEndsWithItsInput)
{
    PDFBuilder pdf;
    pdf.addPage({ .content = "/Nonsense gs (unbalanced" });
    const Outcome result = run({}, openRequest(pdf.build()) + "\n" + renderRequest());
    EXPECT_EQ(result.exitCode, 0);
    ASSERT_EQ(result.answers.size(), 3);
    EXPECT_EQ(object(result.answers[0]).value(u"pages").toInt(), 1);
    EXPECT_EQ(object(result.answers[1]).value(u"error").toString(), u"request"_s);
    EXPECT_EQ(object(result.answers[2]).value(u"id").toInt(), 2);
    EXPECT_EQ(result.errors, QByteArray());
}

TEST_F(PDFServiceProgram, RefusesALineThatIsTooLongAndReadsTheNext)
{
    const QByteArray tooLong = QByteArray(service::MessageStream::LongestRequest * 3, 'x') + '\n';
    const Outcome result = run({}, tooLong + "{\"id\":2}\n");
    EXPECT_EQ(result.exitCode, 0);
    ASSERT_EQ(result.answers.size(), 2);
    EXPECT_EQ(object(result.answers[0]).value(u"error").toString(), u"request"_s);
    EXPECT_TRUE(object(result.answers[0]).value(u"id").isNull());
    EXPECT_EQ(object(result.answers[1]).value(u"id").toInt(), 2);
}

TEST_F(PDFServiceProgram, RefusesArgumentsThatItDoesNotKnow)
{
    for (const QStringList& arguments : { QStringList{ u"--help"_s }, { u"--page-seconds"_s },
             { u"--page-seconds"_s, u"0"_s }, { u"--memory-limit"_s, u"1x"_s } }) {
        const Outcome result = run(arguments, {});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(result.errors.startsWith("usage: "));
    }
}

TEST_F(PDFServiceProgram, EndsItselfWhenAPageTakesTooMuchTime)
{
    const Outcome result
        = run({ u"--page-seconds"_s, u"1"_s }, openRequest(endlessPDF()) + renderRequest());
    EXPECT_EQ(result.exitCode, 124);
    EXPECT_EQ(result.answers.size(), 1);
}

TEST_F(PDFServiceProgram, EndsItselfWhenItsParentDies)
{
    QFile requests(iFolder.filePath(u"requests"_s));
    ASSERT_TRUE(requests.open(QIODevice::WriteOnly));
    requests.write(openRequest(endlessPDF()) + renderRequest());
    requests.close();
    QProcess parent;
    parent.start(u"sh"_s,
        { u"-c"_s, u"\"$0\" --page-seconds 600 <\"$1\" >/dev/null & sleep 1; echo $!"_s, Program,
            requests.fileName() });
    ASSERT_TRUE(parent.waitForFinished(Patience));
    const qint64 worker = parent.readAllStandardOutput().trimmed().toLongLong();
    ASSERT_GT(worker, 0);
    const QDeadlineTimer deadline(Patience);
    while (isAlive(worker) && !deadline.hasExpired())
        QThread::msleep(50);
    EXPECT_FALSE(isAlive(worker));
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(PDFServiceProgram, KeepsWithinItsMemoryAndLivesOn)
{
    PDFBuilder pdf;
    pdf.addPage({ .mediaBox = { 0, 0, 20'000, 20'000 }, .content = "1 0 0 rg 0 0 9 9 re f" });
    const Outcome result = run({ u"--memory-limit"_s, u"300"_s },
        openRequest(pdf.build()) + renderRequest() + "{\"id\":3}\n");
    EXPECT_EQ(result.exitCode, 0);
    ASSERT_EQ(result.answers.size(), 3);
    const QJsonObject drawn = object(result.answers[1]);
    EXPECT_EQ(drawn.value(u"error").toString(), QString());
    EXPECT_LT(drawn.value(u"scale").toDouble(), 0.5);
}
#endif
