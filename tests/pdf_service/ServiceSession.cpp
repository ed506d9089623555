// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/ServiceSession.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace leafcast::service {

QJsonObject ServiceSession::ask(const QString& operation, QJsonObject fields)
{
    fields.insert(u"op"_s, operation);
    return askRaw(QJsonDocument(fields).toJson(QJsonDocument::Compact));
}

QJsonObject ServiceSession::askRaw(const QByteArray& line)
{
    return QJsonDocument::fromJson(iHandler.answer({ line, false })).object();
}

QJsonObject ServiceSession::open(const QByteArray& pdf)
{
    return openFile(writeTestFile(path(u"document.pdf"_s), pdf));
}

QJsonObject ServiceSession::openFile(const QString& path)
{
    return ask(u"open"_s, { { u"path"_s, path }, { u"password"_s, QString() } });
}

QJsonObject ServiceSession::render(int page, double scale, const QJsonObject& fields)
{
    QJsonObject request{ { u"page"_s, page }, { u"scale"_s, scale },
        { u"path"_s, path(u"page.jpg"_s) }, { u"quality"_s, 95 }, { u"chroma"_s, u"444"_s },
        { u"maxBytes"_s, 512 << 20 } };
    for (auto field = fields.begin(); field != fields.end(); ++field)
        request.insert(field.key(), field.value());
    return ask(u"render"_s, request);
}

QString errorOf(const QJsonObject& answer)
{
    return answer.value(u"error").toString();
}

void expectColour(const QImage& picture, QPoint at, const QColor& expected, int tolerance)
{
    const QColor found = picture.pixelColor(at);
    for (const auto part : { &QColor::red, &QColor::green, &QColor::blue })
        EXPECT_NEAR((found.*part)(), (expected.*part)(), tolerance)
            << found.name().toStdString() << " at " << at.x() << ' ' << at.y();
}

} // namespace leafcast::service
