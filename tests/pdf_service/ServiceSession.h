// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "pdf_service/DecodedJPEG.h"
#include "pdf_service/RequestHandler.h"

#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

namespace leafcast::service {

/// Asks the service, without a process in between. Files lie in a folder of its own.
class ServiceSession {
public:
    QString path(const QString& name) const { return iFolder.filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const;

    /// With "op" and the fields given, such as {{"page", 0}}.
    QJsonObject ask(const QString& operation, QJsonObject fields = {});
    /// As it stands.
    QJsonObject askRaw(const QByteArray& line);

    QJsonObject open(const QByteArray& pdf, const QString& password = {});
    QJsonObject openFile(const QString& path, const QString& password = {});

    /// Draws with quality 95, 4:4:4; more fields replace these.
    QJsonObject render(int page, double scale, const QJsonObject& fields = {});
    /// What the last render() wrote.
    DecodedJPEG picture() const { return DecodedJPEG::read(path(QStringLiteral("page.jpg"))); }

private:
    QTemporaryDir iFolder;
    RequestHandler iHandler{ Limits{} };
};

} // namespace leafcast::service
