// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/RequestHandler.h"
#include "support/PDFBuilder.h"
#include "support/TestFiles.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

namespace leafcast::service {

/// Asks the service, without a process in between. Files lie in a folder of its own.
class ServiceSession {
public:
    ServiceSession() = default;
    explicit ServiceSession(const PDFBuilder& pdf) { open(pdf.build()); }

    QString path(const QString& name) const { return iFolder.filePath(name); }

    /// With "op" and the fields given, such as {{"page", 0}}.
    QJsonObject ask(const QString& operation, QJsonObject fields = {});
    /// As it stands.
    QJsonObject askRaw(const QByteArray& line);

    QJsonObject open(const QByteArray& pdf);
    QJsonObject openFile(const QString& path);

    /// Draws with quality 95, 4:4:4; more fields replace these.
    QJsonObject render(int page = 0, double scale = 1, const QJsonObject& fields = {});
    /// What the last render() wrote.
    QImage picture() const { return QImage(path(QStringLiteral("page.jpg"))); }

private:
    QTemporaryDir iFolder;
    RequestHandler iHandler{ Limits{} };
};

/// Empty when all went well.
QString errorOf(const QJsonObject& answer);

void expectColour(const QImage& picture, QPoint at, const QColor& expected, int tolerance = 12);

} // namespace leafcast::service
