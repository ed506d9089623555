// SPDX-License-Identifier: MIT
#include "app/PreviewServer.h"

#include "base/Log.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {
    constexpr int endMilliseconds = 2000;
}

PreviewServer::PreviewServer(QObject* parent)
    : QObject(parent)
{
    iTask.setStandardErrorFile(QProcess::nullDevice());
    connect(&iTask, &QProcess::readyReadStandardOutput, this, &PreviewServer::readAddresses);
    connect(&iTask, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(iTask.errorString());
    });
    connect(&iTask, &QProcess::finished, this, [this](int exitCode) {
        if (!iIsEnding)
            fail(tr("it ended with status %1").arg(exitCode));
    });
}

PreviewServer::~PreviewServer()
{
    stop();
}

void PreviewServer::start(const QString& folder)
{
    stop();
    iAddresses.clear();
    iFailure.clear();
    iIsEnding = false;
    iTask.setWorkingDirectory(folder);
    iTask.start(folder + u"/iPadPreview"_s, QStringList());
    Q_EMIT changed();
}

void PreviewServer::stop()
{
    if (!isRunning())
        return;
    iIsEnding = true;
    iTask.terminate();
    if (iTask.waitForFinished(endMilliseconds))
        return;
    iTask.kill();
    iTask.waitForFinished(endMilliseconds);
}

void PreviewServer::readAddresses()
{
    if (!iAddresses.isEmpty()) {
        iTask.readAllStandardOutput();
        return;
    }
    if (!iTask.canReadLine())
        return;
    const QJsonObject answer = QJsonDocument::fromJson(iTask.readLine()).object();
    for (const QJsonValue& address : answer[u"addresses"].toArray())
        iAddresses.append(address.toString());
    Q_EMIT changed();
}

void PreviewServer::fail(const QString& reason)
{
    iFailure = reason;
    LOG_WARN("PreviewServer", u"can't run %1: %2"_s.arg(iTask.program(), reason));
    Q_EMIT changed();
}

} // namespace leafcast
