// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <optional>
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

    /// Writes the file atomically, then holds what another process stored meanwhile too. A failure
    /// leaves the older file and one log line, and the values are kept for the next time. So does a
    /// file that can be neither read nor, when damaged, set aside.
    void synchronize();

private:
    /// Empty without a file; none when there is one whose content must not be overwritten.
    std::optional<QJsonObject> readFile() const;
    bool setAsideDamagedFile(const QString& why) const;

    mutable std::mutex iMutex;
    QString iFilePath;
    QJsonObject iValues;
    QSet<QString> iChangedKeys;
};

} // namespace leafcast
