// SPDX-License-Identifier: MIT
#include "pdf/PDFDocument.h"

#include "base/Log.h"
#include "base/Sentences.h"
#include "pdf/PDFAnswers.h"
#include "pdf/PDFServiceWorker.h"

#include <algorithm>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct OpenProblem {
        PDFOpenError error;
        QString reason;
    };

    OpenProblem openProblem(const PDFServiceAnswer& answer)
    {
        static const std::map<QString, OpenProblem> refusals{
            { u"missing"_s,
                { PDFOpenError::Missing, Sentences::tr("it does not exist or may not be read") } },
            { u"empty"_s, { PDFOpenError::Empty, Sentences::tr("it is empty") } },
            { u"unreadable"_s,
                { PDFOpenError::Unreadable,
                    Sentences::tr("it is not a PDF or damaged beyond repair") } },
            { u"locked"_s,
                { PDFOpenError::Locked, Sentences::tr("it is locked and needs a password") } },
            { u"password"_s,
                { PDFOpenError::WrongPassword, Sentences::tr("the password is wrong") } },
            { u"memory"_s,
                { PDFOpenError::ServiceFailed,
                    Sentences::tr("it needs more memory than a PDF may use") } },
        };
        const auto found = refusals.find(answer.error);
        return found != refusals.end() ? found->second
                                       : OpenProblem{ PDFOpenError::ServiceFailed, answer.problem };
    }

} // namespace

/// The worker behind a document, and the chunk of pages that was read last.
class PDFDocument::Session {
public:
    explicit Session(const Source& source)
        : iSource(source)
        , iWorker(source)
    {
    }

    const Source& source() const { return iSource; }
    const PDFServiceAnswer& open();
    const QJsonObject& description() const { return iDescription; }

    std::optional<PDFPage> page(int index);
    /// The fields of the answer; none, with one log line, when there is no answer.
    QJsonObject ask(const QString& operation, std::optional<int> page);

private:
    bool holds(int index) const;
    void readChunkWith(int index);
    void logFailure(const QString& what, const QString& problem) const;

    const Source iSource;
    std::mutex iMutex;
    PDFServiceWorker iWorker;
    QJsonObject iDescription;
    int iChunkSize = 128;
    int iChunkFirst = 0;
    std::vector<std::optional<PDFPage>> iChunk;
};

const PDFServiceAnswer& PDFDocument::Session::open()
{
    const PDFServiceAnswer& answer = iWorker.open();
    iDescription = answer.fields;
    return answer;
}

std::optional<PDFPage> PDFDocument::Session::page(int index)
{
    const std::lock_guard lock(iMutex);
    if (!holds(index))
        readChunkWith(index);
    return holds(index) ? iChunk.at(static_cast<size_t>(index - iChunkFirst)) : std::nullopt;
}

bool PDFDocument::Session::holds(int index) const
{
    return index >= iChunkFirst && static_cast<size_t>(index - iChunkFirst) < iChunk.size();
}

void PDFDocument::Session::readChunkWith(int index)
{
    iChunkFirst = index - index % iChunkSize;
    const PDFServiceAnswer answer = iWorker.ask(
        { { u"op"_s, u"pages"_s }, { u"first"_s, iChunkFirst }, { u"count"_s, iChunkSize } });
    if (answer.isAnswered()) {
        iChunk = PDFAnswers::pages(answer.fields, iChunkFirst);
    } else if (iChunkSize > 1) {
        iChunkSize = 1; // one page of the chunk is to blame: from here on each is asked for alone
        readChunkWith(index);
    } else {
        iChunk = { std::nullopt };
        logFailure(u"page %1"_s.arg(index + 1), answer.problem);
    }
}

QJsonObject PDFDocument::Session::ask(const QString& operation, std::optional<int> page)
{
    const std::lock_guard lock(iMutex);
    QJsonObject request{ { u"op"_s, operation } };
    if (page)
        request["page"_L1] = *page;
    const PDFServiceAnswer answer = iWorker.ask(request);
    if (!answer.isAnswered())
        logFailure(
            page ? u"%1 of page %2"_s.arg(operation).arg(*page + 1) : operation, answer.problem);
    return answer.fields;
}

void PDFDocument::Session::logFailure(const QString& what, const QString& problem) const
{
    LOG_WARN("PDFDocument", u"%1: no %2: %3"_s.arg(iSource.path, what, problem));
}

PDFDocument::OpenResult PDFDocument::open(const Source& source)
{
    auto session = std::make_unique<Session>(source);
    const PDFServiceAnswer& answer = session->open();
    if (!answer.isAnswered()) {
        const OpenProblem problem = openProblem(answer);
        return { .document = nullptr, .error = problem.error, .reason = problem.reason };
    }
    return { .document = std::shared_ptr<PDFDocument>(new PDFDocument(std::move(session))),
        .error = PDFOpenError::None,
        .reason = {} };
}

PDFDocument::PDFDocument(std::unique_ptr<Session> session)
    : iSession(std::move(session))
{
}

PDFDocument::~PDFDocument() = default;

const PDFDocument::Source& PDFDocument::source() const
{
    return iSession->source();
}

int PDFDocument::pageCount() const
{
    return std::max(0, iSession->description()["pages"_L1].toInt());
}

QString PDFDocument::title() const
{
    return iSession->description()["title"_L1].toString();
}

bool PDFDocument::isRepaired() const
{
    return iSession->description()["repaired"_L1].toBool();
}

bool PDFDocument::isEncrypted() const
{
    return iSession->description()["encrypted"_L1].toBool();
}

bool PDFDocument::has(int index) const
{
    return index >= 0 && index < pageCount();
}

std::optional<PDFPage> PDFDocument::pageAtIndex(int index) const
{
    return has(index) ? iSession->page(index) : std::nullopt;
}

std::vector<PDFAnnotation> PDFDocument::annotationsOfPage(int index) const
{
    return has(index) ? PDFAnswers::annotations(iSession->ask(u"annotations"_s, index))
                      : std::vector<PDFAnnotation>();
}

std::vector<PDFTextLine> PDFDocument::textOfPage(int index) const
{
    return has(index) ? PDFAnswers::textLines(iSession->ask(u"text"_s, index))
                      : std::vector<PDFTextLine>();
}

std::optional<PDFOutline> PDFDocument::outlineRoot() const
{
    return PDFAnswers::outlineRoot(iSession->ask(u"outline"_s, std::nullopt));
}

} // namespace leafcast
