// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/Bitmap.h"
#include "pdf_service/Document.h"
#include "pdf_service/Limits.h"
#include "pdf_service/MessageStream.h"

#include <memory>
#include <QJsonObject>

namespace leafcast::service {

/// Answers the requests of docs/pdf-service.md, one document at a time. Nothing leaves as an
/// exception: whatever goes wrong with a request is its answer.
class RequestHandler {
public:
    explicit RequestHandler(const Limits& limits);

    QByteArray answer(const MessageStream::Line& line);

private:
    using Operation = QJsonObject (RequestHandler::*)(const QJsonObject&);
    static Operation operationNamed(const QString& name);

    QJsonObject run(const QJsonObject& request);
    QJsonObject open(const QJsonObject& request);
    QJsonObject pages(const QJsonObject& request);
    QJsonObject annotations(const QJsonObject& request);
    QJsonObject outline(const QJsonObject& request);
    QJsonObject text(const QJsonObject& request);
    QJsonObject render(const QJsonObject& request);

    const Document& document() const;

    Limits iLimits;
    Library iLibrary;
    std::unique_ptr<Document> iDocument;
    Bitmap iBitmap; // kept for its memory, as is the next
    std::vector<unsigned char> iPicture;
};

} // namespace leafcast::service
