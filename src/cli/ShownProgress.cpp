// SPDX-License-Identifier: MIT
#include "cli/ShownProgress.h"

using namespace Qt::StringLiterals;

namespace leafcast {

ShownProgress::ShownProgress(ProgressBar& bar, const QString& notification, const QString& type)
    : iBar(bar)
{
    iRegistration = NotificationCenter::defaultCenter().addObserver(
        notification, [this, type](const Notification& progress) {
            if (progress.userInfo[u"type"_s].toString() != type)
                return;
            iDone = progress.userInfo[u"pageIndex"_s].toInt();
            iTotal = progress.userInfo[u"totalPage"_s].toInt();
        });
}

void ShownProgress::show()
{
    if (iTotal > 0)
        iBar.show(iDone, iTotal);
}

} // namespace leafcast
