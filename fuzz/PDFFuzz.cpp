// SPDX-License-Identifier: AGPL-3.0-or-later
#include "FuzzTarget.h"
#include "pdf_service/RequestHandler.h"

#include <QJsonDocument>

using namespace leafcast;
using namespace leafcast::service;
using namespace Qt::StringLiterals;

namespace {

QJsonObject answerOf(RequestHandler& handler, const QString& operation, QJsonObject request)
{
    request[u"id"_s] = 1;
    request[u"op"_s] = operation;
    const QByteArray text = QJsonDocument(request).toJson(QJsonDocument::Compact);
    const QJsonObject answer = QJsonDocument::fromJson(handler.answer({ .text = text })).object();
    fuzz::require(answer[u"id"_s] == 1, "each request is answered");
    fuzz::require(!answer.contains(u"error"_s) || !answer[u"message"_s].toString().isEmpty(),
        "a failure has a reason");
    return answer;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString file = fuzz::fileWith(fuzz::bytesOf(data, size), u"document.pdf"_s);
    const QString picture = QString(file).replace(u"document.pdf"_s, u"page.jpg"_s);
    RequestHandler handler(Limits{});
    const QJsonObject opened
        = answerOf(handler, u"open"_s, { { u"path"_s, file }, { u"password"_s, u""_s } });
    if (opened.contains(u"error"_s))
        return 0;
    answerOf(handler, u"pages"_s, { { u"first"_s, 0 }, { u"count"_s, 20 } });
    answerOf(handler, u"outline"_s, {});
    answerOf(handler, u"annotations"_s, { { u"page"_s, 0 } });
    answerOf(handler, u"text"_s, { { u"page"_s, 0 } });
    answerOf(handler, u"render"_s,
        { { u"page"_s, 0 }, { u"scale"_s, 0.5 }, { u"path"_s, picture }, { u"quality"_s, 80 },
            { u"chroma"_s, u"420"_s }, { u"maxBytes"_s, 4'000'000 } });
    return 0;
}
