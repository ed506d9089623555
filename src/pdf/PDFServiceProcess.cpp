// SPDX-License-Identifier: MIT
#include "pdf/PDFServiceProcess.h"

#include "base/Log.h"
#include "base/ResourceFolder.h"
#include "base/Sentences.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    using Ending = ChildProcess::Ending;
    using Outcome = PDFServiceAnswer::Outcome;

    QString described(const Ending& ending)
    {
        switch (ending.how) {
        case Ending::How::ExitStatus:
            return Sentences::tr("exit status %1").arg(ending.code);
        case Ending::How::Signal:
            return Sentences::tr("signal %1").arg(ending.code);
        case Ending::How::Unknown:
            break;
        }
        return Sentences::tr("it is not known how");
    }

    PDFServiceAnswer failure(Outcome outcome, const QString& problem)
    {
        return { .outcome = outcome, .problem = problem };
    }

    PDFServiceAnswer notStarted(const QString& why)
    {
        return failure(
            Outcome::NotStarted, Sentences::tr("the PDF service could not be started: ") + why);
    }

    PDFServiceAnswer stopped()
    {
        return failure(Outcome::Stopped, Sentences::tr("it was stopped"));
    }

    PDFServiceAnswer refusal(const QJsonObject& fields)
    {
        const QString message = fields["message"_L1].toString();
        return { .outcome = Outcome::Refused,
            .error = fields["error"_L1].toString(),
            .problem
            = message.isEmpty() ? Sentences::tr("the PDF service could not read it") : message };
    }

} // namespace

std::optional<PDFServiceAnswer> PDFServiceProcess::start(const PDFServiceLimits& limits)
{
    const QString program
        = ResourceFolder::helperProgram(u"leafcast-pdf"_s, "LEAFCAST_PDF_SERVICE");
    if (program.isEmpty())
        return notStarted(Sentences::tr("the program leafcast-pdf is missing"));
    QStringList arguments = { u"--memory-limit"_s, QString::number(limits.memoryMebibytes),
        u"--page-seconds"_s, QString::number(limits.pageSeconds) };
    if (limits.niceness > 0)
        arguments += { u"--nice"_s, QString::number(limits.niceness) };
    iChannel = LineChannel(iChild.start(program, arguments));
    iHasAnswered = false;
    if (iChannel.isOpen())
        return std::nullopt;
    return iChild.isStopped() ? stopped() : notStarted(iChild.error());
}

PDFServiceAnswer PDFServiceProcess::ask(const QJsonObject& request, std::chrono::seconds limit)
{
    const LineChannel::Deadline deadline = std::chrono::steady_clock::now() + limit;
    QJsonObject numbered = request;
    numbered["id"_L1] = ++iRequestId;
    QByteArray line = QJsonDocument(numbered).toJson(QJsonDocument::Compact);
    LineChannel::Result result = iChannel.send(line, deadline);
    if (result == LineChannel::Result::Done)
        result = iChannel.receive(line, deadline);
    if (result != LineChannel::Result::Done)
        return failed(result, limit);
    iHasAnswered = true;
    if (std::optional<PDFServiceAnswer> answer = parsed(line))
        return std::move(*answer);
    return failed(LineChannel::Result::TooLong, limit);
}

std::optional<PDFServiceAnswer> PDFServiceProcess::parsed(const QByteArray& line) const
{
    const QJsonObject fields = QJsonDocument::fromJson(line).object();
    if (fields["id"_L1].toInteger(-1) != iRequestId)
        return std::nullopt;
    if (fields.contains("error"_L1))
        return refusal(fields);
    return PDFServiceAnswer{ .outcome = Outcome::Answered, .fields = fields };
}

ChildProcess::Ending PDFServiceProcess::end()
{
    iChannel = LineChannel();
    return iChild.end();
}

PDFServiceAnswer PDFServiceProcess::failed(LineChannel::Result result, std::chrono::seconds limit)
{
    if (result == LineChannel::Result::Closed)
        return died();
    end();
    if (result == LineChannel::Result::TimedOut)
        return failure(Outcome::TimedOut,
            limit.count() == 1
                ? Sentences::tr("it took longer than a second")
                : Sentences::tr("it took longer than %1 seconds").arg(limit.count()));
    return failure(
        Outcome::Died, Sentences::tr("the PDF service gave an answer that makes no sense"));
}

PDFServiceAnswer PDFServiceProcess::died()
{
    const Ending ending = end();
    if (iChild.isStopped())
        return stopped();
    if (!iHasAnswered && ending.how == Ending::How::ExitStatus && !ending.lastWords.isEmpty())
        return notStarted(ending.lastWords);
    if (!ending.lastWords.isEmpty())
        LOG_DEBUG("PDFServiceProcess", ending.lastWords);
    return failure(Outcome::Died,
        Sentences::tr("the PDF service crashed over it (%1)").arg(described(ending)));
}

} // namespace leafcast
