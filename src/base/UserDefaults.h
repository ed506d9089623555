// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <QJsonObject>
#include <QSet>
#include <QString>

namespace leafcast {

/// The user's remembered choices: a typed store (numbers as numbers, strings as strings) in one
/// JSON file. Values change in memory; synchronize() writes them. Two processes may save at once:
/// each writes only the keys that it set. Safe on any thread.
class UserDefaults {
public:
    explicit UserDefaults(const QString& filePath);

    /// "leafcast/defaults.json" in the user's configuration folder.
    static UserDefaults& standard();

    /// Undefined for a key that was never stored.
    QJsonValue objectForKey(const QString& key) const;
    /// A value that is held already counts as unchanged.
    void setObject(const QString& key, const QJsonValue& value);

    /// Writes the file atomically, then holds what another process stored meanwhile too. A damaged
    /// file is first set aside under another name. A failure leaves the older file and one log
    /// line, and the values are kept for the next time. So does a file that can be neither read
    /// nor, when damaged, set aside.
    void synchronize();

private:
    enum class FileState { Usable, Unreadable, Damaged }; // none at all is usable
    struct Content {
        QJsonObject values;
        FileState state = FileState::Usable;
        QString damage; // what makes it a damaged one
    };
    Content readFile() const;
    /// Only under the lock: without it the file may be another process's new one by then.
    bool setAside(const QString& damage) const;

    mutable std::mutex iMutex;
    QString iFilePath;
    QJsonObject iValues;
    QSet<QString> iChangedKeys;
};

} // namespace leafcast
