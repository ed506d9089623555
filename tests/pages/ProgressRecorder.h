// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "pages/ImportNotifications.h"

#include <functional>
#include <QStringList>

namespace leafcast {

/// Writes down every import notification as "geneatePage 1/3", then does what it was told to.
struct ProgressRecorder {
    std::function<void(const QString&)> then = [](const QString&) {};
    QStringList lines{};
    NotificationCenter::Registration registration = NotificationCenter::defaultCenter().addObserver(
        ImportProgressInfoMSG, [this](const Notification& notification) {
            QString line = QStringLiteral("type pageIndex/totalPage");
            for (const auto& [key, value] : notification.userInfo.asKeyValueRange())
                line.replace(key, value.toString());
            lines.append(line);
            then(line);
        });
};

} // namespace leafcast
