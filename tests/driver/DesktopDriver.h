// SPDX-License-Identifier: MIT
#pragma once

#include "Hands.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

namespace leafcast {

/// Drives the windows of the program that loads it, on behalf of a test or of the benchmark. Takes
/// commands from standard input, one JSON object a line, one at a time, and answers each with one
/// on standard output: what was found, or an "error".
///
///     {"do": "click", "name": N}                      a control or a command by its object name
///     {"do": "click", "name": N, "button": T}         the button of a message box
///     {"do": "type", "name": N, "text": T}            replaces the text of a field
///     {"do": "select", "row": "Group/Title"}          a property of the tree
///     {"do": "edit", "row": "Group/Title", "text": V} gives it another value
///     {"do": "wait", "name": N, "property": P, "value": V}
///     {"do": "script", "code": C}                     until the preview's page says something true
///     {"do": "loads", "count": N}                     until the preview began to load a page so
///     often,
///                                                     since the first time that it was asked
///     {"do": "see", "name": N, "colour": "#rrggbb"}   until a twentieth of the widget shows it
///     {"do": "heartbeat"}                             the event loop's longest silence since the
///                                                     last time, as "worstMilliseconds"
///     {"do": "quit"}                                  closes the main window
///
/// A command waits until it can be done, which is never a matter of time alone: only after a minute
/// it gives up.
class DesktopDriver : public QObject {
    Q_OBJECT

public:
    DesktopDriver();

private:
    void read();
    void attempt();
    void answer(const QJsonObject& found);
    void beat();
    QJsonObject heartbeat();

    QFile iInput;
    QSocketNotifier iArrival;
    Hands iHands;
    QJsonObject iCommand; // empty while there is none
    QElapsedTimer iWaiting;
    QTimer iAttempts;
    QTimer iBeats;
    QElapsedTimer iLastBeat;
    qint64 iWorstNanoseconds = 0;
};

} // namespace leafcast
