// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <QJsonObject>
#include <QJsonValue>

class QAbstractButton;
class QWidget;

namespace leafcast {

/// Does with the windows of its program what a user does, once they let it.
class Hands {
public:
    /// None while the command can't be done yet.
    std::optional<QJsonObject> attempt(const QJsonObject& command);
    /// Why the last attempt came to nothing.
    const QString& lastObstacle() const { return iObstacle; }

private:
    using Outcome = std::optional<QJsonObject>;

    Outcome click(const QJsonObject& command);
    Outcome clickButton(QWidget& box, const QString& text);
    Outcome type(const QJsonObject& command);
    Outcome select(const QJsonObject& command);
    Outcome edit(const QJsonObject& command);
    Outcome wait(const QJsonObject& command);
    Outcome script(const QJsonObject& command);
    Outcome loads(const QJsonObject& command);
    Outcome see(const QJsonObject& command);
    Outcome quit(const QJsonObject& command);
    Outcome obstacle(const QString& reason);

    /// Shown and usable; the one of the sheet that is open goes before its namesakes.
    QWidget* usable(const QString& name);

    QString iObstacle;
    std::optional<int> iLoads; // since they are counted
    bool iIsAsking = false; // a script is under way
    std::shared_ptr<QJsonValue> iScriptAnswer;
};

} // namespace leafcast
