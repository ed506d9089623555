// SPDX-License-Identifier: MIT
#include "DesktopDriver.h"

#include <algorithm>
#include <cstdio>
#include <QApplication>
#include <QJsonDocument>
#include <QWidget>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int attemptMilliseconds = 5;
    constexpr int beatMilliseconds = 5;
    constexpr qint64 patienceMilliseconds = 60'000;
    constexpr double nanosecondsOfMillisecond = 1e6;

} // namespace

DesktopDriver::DesktopDriver()
    : iArrival(STDIN_FILENO, QSocketNotifier::Read)
{
    if (!iInput.open(STDIN_FILENO, QFile::ReadOnly | QFile::Unbuffered))
        return;
    connect(&iArrival, &QSocketNotifier::activated, this, &DesktopDriver::read);
    iAttempts.setInterval(attemptMilliseconds);
    connect(&iAttempts, &QTimer::timeout, this, &DesktopDriver::attempt);
    iBeats.setTimerType(Qt::PreciseTimer);
    iBeats.setInterval(beatMilliseconds);
    connect(&iBeats, &QTimer::timeout, this, &DesktopDriver::beat);
}

void DesktopDriver::read()
{
    const QByteArray line = iInput.readLine();
    if (line.isEmpty()) { // whoever drove is gone
        iArrival.setEnabled(false);
        QApplication::quit();
        return;
    }
    iCommand = QJsonDocument::fromJson(line).object();
    iWaiting.start();
    iAttempts.start();
}

void DesktopDriver::attempt()
{
    if (iCommand.value(u"do").toString() == u"heartbeat")
        return answer(heartbeat());
    if (const auto found = iHands.attempt(iCommand))
        answer(*found);
    else if (iWaiting.hasExpired(patienceMilliseconds))
        answer({ { u"error"_s, iHands.lastObstacle() } });
}

void DesktopDriver::answer(const QJsonObject& found)
{
    iAttempts.stop();
    iCommand = {};
    const QByteArray line = QJsonDocument(found).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

void DesktopDriver::beat()
{
    iWorstNanoseconds = std::max(iWorstNanoseconds, iLastBeat.nsecsElapsed());
    iLastBeat.start();
}

QJsonObject DesktopDriver::heartbeat()
{
    const double worst = static_cast<double>(iWorstNanoseconds) / nanosecondsOfMillisecond;
    iWorstNanoseconds = 0;
    iLastBeat.start();
    iBeats.start();
    return { { u"worstMilliseconds"_s, worst } };
}

} // namespace leafcast
