// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/RequestHandler.h"

#include "pdf_service/Annotations.h"
#include "pdf_service/JPEGEncoder.h"
#include "pdf_service/Outline.h"
#include "pdf_service/PagePainter.h"
#include "pdf_service/PageText.h"
#include "pdf_service/PictureFile.h"
#include "pdf_service/RequestFields.h"

#include <climits>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    constexpr int MostPagesAtOnce = 10'000;

    QJsonObject errorAnswer(ErrorCode code, const QString& message)
    {
        return { { u"error"_s, errorWord(code) }, { u"message"_s, message } };
    }

    QByteArray serialized(const QJsonObject& answer)
    {
        return QJsonDocument(answer).toJson(QJsonDocument::Compact);
    }

    QJsonArray jsonRectangle(const Box& box)
    {
        return { box.left, box.bottom, box.width(), box.height() };
    }

    QJsonValue jsonPage(const Document& document, int index)
    {
        const std::optional<PageGeometry> page = document.geometry(index);
        if (!page)
            return QJsonValue::Null;
        return QJsonObject{ { u"mediaBox"_s, jsonRectangle(page->mediaBox) },
            { u"cropBox"_s, jsonRectangle(page->cropBox) }, { u"rotation"_s, page->rotation },
            { u"userUnit"_s, page->userUnit }, { u"label"_s, document.label(index) } };
    }

    QJsonObject jsonAnnotation(const Annotation& annotation)
    {
        QJsonObject object{ { u"type"_s, annotation.type },
            { u"bounds"_s, jsonRectangle(annotation.bounds) } };
        if (annotation.target.url)
            object.insert(u"url"_s, *annotation.target.url);
        if (annotation.target.page)
            object.insert(u"page"_s, *annotation.target.page);
        return object;
    }

    QJsonObject jsonLine(const TextLine& line)
    {
        QJsonArray boxes;
        for (const FractionBox& box : line.boxes)
            boxes.append(QJsonArray{ box.x, box.y, box.width, box.height });
        return { { u"text"_s, line.text }, { u"boxes"_s, boxes } };
    }

    JPEGOptions jpegOptions(const RequestFields& fields)
    {
        const QString chroma = fields.text("chroma");
        if (chroma != "444"_L1 && chroma != "420"_L1)
            throw ServiceError(ErrorCode::Request, u"the chroma must be 444 or 420"_s);
        return { fields.integer("quality", 1, 100),
            chroma == "444"_L1 ? Chroma::Full : Chroma::Halved };
    }

} // namespace

RequestHandler::RequestHandler(const Limits& limits)
    : iLimits(limits)
{
}

QByteArray RequestHandler::answer(const MessageStream::Line& line)
{
    const QJsonObject request = QJsonDocument::fromJson(line.text).object();
    QJsonObject answer;
    try {
        if (line.tooLong)
            throw ServiceError(ErrorCode::Request, u"the request is too long"_s);
        answer = run(request);
    } catch (const ServiceError& error) {
        answer = errorAnswer(error.code(), error.message());
    } catch (const std::bad_alloc&) {
        answer = errorAnswer(ErrorCode::Memory, u"it needs more memory than is allowed"_s);
    }
    const QJsonValue id = request.value(u"id");
    answer.insert(u"id"_s, id.isDouble() ? id : QJsonValue());
    QByteArray message = serialized(answer);
    if (message.size() < MessageStream::LongestAnswer)
        return message;
    answer = errorAnswer(ErrorCode::Memory, u"the answer is too long"_s);
    answer.insert(u"id"_s, id);
    return serialized(answer);
}

RequestHandler::Operation RequestHandler::operationNamed(const QString& name)
{
    static const struct {
        QLatin1String name;
        Operation operation;
    } table[] = { { "open"_L1, &RequestHandler::open }, { "pages"_L1, &RequestHandler::pages },
        { "annotations"_L1, &RequestHandler::annotations },
        { "outline"_L1, &RequestHandler::outline }, { "text"_L1, &RequestHandler::text },
        { "render"_L1, &RequestHandler::render } };
    for (const auto& entry : table) {
        if (name == entry.name)
            return entry.operation;
    }
    throw ServiceError(ErrorCode::Request, u"there is no such operation"_s);
}

QJsonObject RequestHandler::run(const QJsonObject& request)
{
    const RequestWatch watch(iLimits.pageSeconds);
    const QString name = RequestFields(request).text("op");
    QJsonObject answer = (this->*operationNamed(name))(request);
    if (iDocument)
        iDocument->trimMemory();
    return answer;
}

QJsonObject RequestHandler::open(const QJsonObject& request)
{
    const RequestFields fields(request);
    iDocument.reset();
    iDocument
        = std::make_unique<Document>(iLibrary, fields.text("path"), fields.textOrEmpty("password"));
    return { { u"pages"_s, iDocument->pageCount() }, { u"title"_s, iDocument->title() },
        { u"repaired"_s, iDocument->isRepaired() }, { u"encrypted"_s, iDocument->isEncrypted() } };
}

QJsonObject RequestHandler::pages(const QJsonObject& request)
{
    const RequestFields fields(request);
    const int first = fields.integer("first", 0, INT_MAX);
    const int count = fields.integer("count", 0, MostPagesAtOnce);
    QJsonArray pages;
    for (int i = 0; i < count && first < document().pageCount() - i; ++i)
        pages.append(jsonPage(document(), first + i));
    return { { u"pages"_s, pages } };
}

QJsonObject RequestHandler::annotations(const QJsonObject& request)
{
    const int page = RequestFields(request).integer("page", 0, INT_MAX);
    QJsonArray list;
    for (const Annotation& annotation : annotationsOfPage(document(), page))
        list.append(jsonAnnotation(annotation));
    return { { u"annotations"_s, list } };
}

QJsonObject RequestHandler::outline(const QJsonObject&)
{
    QJsonArray list;
    for (const OutlineEntry& entry : outlineOf(document()))
        list.append(QJsonObject{
            { u"level"_s, entry.level }, { u"label"_s, entry.label }, { u"page"_s, entry.page } });
    return { { u"entries"_s, list } };
}

QJsonObject RequestHandler::text(const QJsonObject& request)
{
    const int page = RequestFields(request).integer("page", 0, INT_MAX);
    const PageText text = textOfPage(LoadedPage(document(), page));
    QJsonArray lines;
    for (const TextLine& line : text.lines)
        lines.append(jsonLine(line));
    return { { u"lines"_s, lines }, { u"cut"_s, text.isCut } };
}

QJsonObject RequestHandler::render(const QJsonObject& request)
{
    const RequestFields fields(request);
    const LoadedPage page(document(), fields.integer("page", 0, INT_MAX));
    const PaintOptions options{ fields.number("scale", 0.001, 1000),
        fields.number("maxBytes", 3, 1e15) };
    const JPEGOptions jpeg = jpegOptions(fields);
    const QString path = fields.text("path");
    const PaintResult painted = paintPage(page, options, iBitmap);
    encodeJPEG(iBitmap, jpeg, iPicture);
    writePicture(path, iPicture);
    return { { u"width"_s, iBitmap.width }, { u"height"_s, iBitmap.height },
        { u"bytes"_s, static_cast<qint64>(iPicture.size()) },
        { u"grey"_s, iBitmap.components == 1 }, { u"scale"_s, painted.scale },
        { u"incomplete"_s, painted.incomplete } };
}

const Document& RequestHandler::document() const
{
    if (!iDocument)
        throw ServiceError(ErrorCode::Request, u"no document is open"_s);
    return *iDocument;
}

} // namespace leafcast::service
