// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QTimer>

namespace leafcast {

/// The toolbar's "apply change" item. It blinks while changes are pending: its tag counts the
/// phase, a picture every 0.33 seconds.
class ApplyItem : public QAction {
    Q_OBJECT

public:
    explicit ApplyItem(QObject* parent = nullptr);

    bool isPending() const { return iApplyChangeTimer.isActive(); }
    /// Does nothing when changes are pending already.
    void setPending();
    /// Back to the resting picture.
    void rest();
    int tag() const { return iTag; }
    /// One blink step.
    void onTimerEvent();

private:
    void showImage(const QString& name);

    QTimer iApplyChangeTimer;
    int iTag = 0;
};

} // namespace leafcast
