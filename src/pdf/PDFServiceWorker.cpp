// SPDX-License-Identifier: MIT
#include "pdf/PDFServiceWorker.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    using Outcome = PDFServiceAnswer::Outcome;

    // The second try is for a service that was killed from outside, by a system short of memory.
    constexpr int triesToOpen = 2;

    PDFDocument::Source absolute(PDFDocument::Source source)
    {
        source.path = QFileInfo(source.path).absoluteFilePath();
        return source;
    }

} // namespace

PDFServiceWorker::PDFServiceWorker(const PDFDocument::Source& source)
    : iSource(absolute(source))
    , iTriesLeft(triesToOpen)
{
}

const PDFServiceAnswer& PDFServiceWorker::open()
{
    while (!iProcess.isReady() && iTriesLeft > 0) {
        --iTriesLeft;
        iOpening = startAndOpen();
        if (iOpening.isAnswered())
            iTriesLeft = triesToOpen;
        else if (iOpening.outcome != Outcome::Died)
            iTriesLeft = 0;
    }
    return iOpening;
}

PDFServiceAnswer PDFServiceWorker::ask(const QJsonObject& request)
{
    if (const PDFServiceAnswer& opening = open(); !opening.isAnswered())
        return opening;
    PDFServiceAnswer answer = iProcess.ask(request, pageLimit());
    if (answer.error == u"memory"_s)
        iProcess.end(); // what it holds and can't use again would be held to the end
    return answer;
}

PDFServiceAnswer PDFServiceWorker::startAndOpen()
{
    if (const std::optional<PDFServiceAnswer> failure = iProcess.start(iSource.limits))
        return *failure;
    const QJsonObject request{ { u"op"_s, u"open"_s }, { u"path"_s, iSource.path },
        { u"password"_s, iSource.password } };
    return iProcess.ask(request, pageLimit());
}

std::chrono::seconds PDFServiceWorker::pageLimit() const
{
    return std::chrono::seconds(iSource.limits.pageSeconds);
}

} // namespace leafcast
