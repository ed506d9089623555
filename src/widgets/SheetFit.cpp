// SPDX-License-Identifier: MIT
#include "widgets/SheetFit.h"

#include <QEvent>
#include <QLayout>

namespace leafcast {

SheetFit::SheetFit(QDialog& sheet)
    : QObject(&sheet)
    , iSheet(sheet)
{
    sheet.installEventFilter(this);
}

bool SheetFit::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::LayoutRequest)
        return false;
    // The layout first learns what changed, and the smallest size with it.
    iSheet.layout()->activate();
    const QSize usual = iSheet.layout()->totalSizeHint();
    const int width = std::max(iSheet.width(), usual.width());
    const int height = iSheet.layout()->hasHeightForWidth()
        ? iSheet.layout()->totalHeightForWidth(width)
        : usual.height();
    iSheet.resize(width, height);
    return false;
}

} // namespace leafcast
