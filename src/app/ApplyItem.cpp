// SPDX-License-Identifier: MIT
#include "app/ApplyItem.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {
    constexpr int blinkMilliseconds = 330;
    constexpr int phases = 3;
} // namespace

ApplyItem::ApplyItem(QObject* parent)
    : QAction(parent)
{
    setText(tr("&Apply Changes"));
    setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    setStatusTip(tr("Show the changes in the preview"));
    iApplyChangeTimer.setInterval(blinkMilliseconds);
    connect(&iApplyChangeTimer, &QTimer::timeout, this, &ApplyItem::onTimerEvent);
    showImage(u"apply"_s);
}

void ApplyItem::setPending()
{
    if (!isPending())
        iApplyChangeTimer.start();
}

void ApplyItem::rest()
{
    iApplyChangeTimer.stop();
    showImage(u"apply"_s);
}

void ApplyItem::onTimerEvent()
{
    iTag = (iTag + 1) % phases;
    showImage(u"apply%1"_s.arg(iTag + 1));
}

void ApplyItem::showImage(const QString& name)
{
    setIcon(QIcon(u":/icons/%1.svg"_s.arg(name)));
}

} // namespace leafcast
