// SPDX-License-Identifier: MIT
#include "app/SingleInstance.h"

#include "base/Log.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {
    constexpr int waitMilliseconds = 2000;
    constexpr int pauseMilliseconds = 50;
} // namespace

SingleInstance::SingleInstance(const QString& name, QObject* parent)
    : QObject(parent)
    , iName(name)
    , iLock(QDir::tempPath() + u'/' + name + u".lock"_s)
{
    iLock.setStaleLockTime(0);
    iServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&iServer, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

bool SingleInstance::claim(const QStringList& files)
{
    if (!iLock.tryLock()) {
        handOver(files);
        return false;
    }
    QLocalServer::removeServer(iName);
    if (!iServer.listen(iName))
        LOG_WARN("SingleInstance", u"can't listen at %1: %2"_s.arg(iName, iServer.errorString()));
    return true;
}

void SingleInstance::handOver(const QStringList& files) const
{
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream << files;
    // The other one may be starting and not listen yet.
    QLocalSocket first;
    QDeadlineTimer end(waitMilliseconds);
    while (!first.waitForConnected(pauseMilliseconds) && !end.hasExpired()) {
        first.connectToServer(iName);
        QThread::msleep(pauseMilliseconds);
    }
    first.write(message);
    first.disconnectFromServer();
    if (first.state() != QLocalSocket::UnconnectedState
        && !first.waitForDisconnected(waitMilliseconds))
        LOG_WARN("SingleInstance", u"the program that runs does not answer at %1"_s.arg(iName));
}

void SingleInstance::receive()
{
    QLocalSocket* later = iServer.nextPendingConnection();
    connect(later, &QLocalSocket::disconnected, this, [this, later] {
        QStringList files;
        QDataStream stream(later->readAll());
        stream >> files;
        Q_EMIT startedAgain(files);
        later->deleteLater();
    });
}

} // namespace leafcast
