// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace leafcast {

/// One line on standard error: bar, count, rate, time left; gone when the bar is. Draws nothing
/// when standard error is no terminal.
class ProgressBar {
public:
    enum class Visibility { WhenTerminal, Never };

    ProgressBar(const QString& unit, Visibility visibility);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(int done, int total);

    /// The line as drawn into a given number of columns; apart so that it can be tested.
    static QString line(const QString& unit, int done, int total, double seconds, int columns);

private:
    QString iUnit;
    bool iVisible;
    bool iDrawn = false;
    QElapsedTimer iClock;
};

} // namespace leafcast
