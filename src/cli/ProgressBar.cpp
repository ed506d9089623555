// SPDX-License-Identifier: MIT
#include "cli/ProgressBar.h"

#include "cli/Console.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int widestBar = 40;
    constexpr int narrowestBar = 8;

    QString minutesAndSeconds(double seconds)
    {
        const int whole = static_cast<int>(std::ceil(std::min(seconds, 359999.0)));
        return u"%1:%2"_s.arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
    }

    QString bar(int done, int total, int columns)
    {
        const int filled
            = static_cast<int>(static_cast<qint64>(columns) * done / std::max(total, 1));
        return QString(filled, u'\u2588') + QString(columns - filled, u'\u2591');
    }

} // namespace

ProgressBar::ProgressBar(const QString& unit, Visibility visibility)
    : iUnit(unit)
    , iVisible(visibility == Visibility::WhenTerminal && Console::isTerminal())
{
    iClock.start();
}

ProgressBar::~ProgressBar()
{
    if (iDrawn)
        fputs("\r\033[K", stderr);
}

QString ProgressBar::line(const QString& unit, int done, int total, double seconds, int columns)
{
    QString text = u" %1/%2 %3"_s.arg(done).arg(total).arg(unit);
    if (done > 0 && seconds > 0) {
        const double rate = done / seconds;
        text += u"  %1/s  %2 left"_s.arg(rate, 0, 'f', rate < 10 ? 1 : 0)
                    .arg(minutesAndSeconds((total - done) / rate));
    }
    const int room = std::min(widestBar, columns - 1 - static_cast<int>(text.size()));
    return room >= narrowestBar ? bar(done, total, room) + text : text.trimmed().left(columns - 1);
}

void ProgressBar::show(int done, int total)
{
    if (!iVisible)
        return;
    const double seconds = static_cast<double>(iClock.elapsed()) / 1000;
    const QByteArray text = line(iUnit, done, total, seconds, Console::width()).toLocal8Bit();
    fprintf(stderr, "\r\033[K%s", text.constData());
    iDrawn = true;
}

} // namespace leafcast
