// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "pages/ImportNotifications.h"

#include <functional>
#include <QStringList>

namespace leafcast {

/// Writes down every import notification as "geneatePage 1/3", then does what it was told to.
class ProgressRecorder {
public:
    explicit ProgressRecorder(std::function<void(const QString&)> then = {})
        : iRegistration(NotificationCenter::defaultCenter().addObserver(ImportProgressInfoMSG,
            [this, then = std::move(then)](const Notification& notification) {
                iLines.append(described(notification.userInfo));
                if (then)
                    then(iLines.last());
            }))
    {
    }

    const QStringList& lines() const { return iLines; }

private:
    static QString described(const QVariantMap& info)
    {
        return QStringLiteral("%1 %2/%3")
            .arg(info[QStringLiteral("type")].toString(),
                info[QStringLiteral("pageIndex")].toString(),
                info[QStringLiteral("totalPage")].toString());
    }

    QStringList iLines;
    NotificationCenter::Registration iRegistration;
};

} // namespace leafcast
