// SPDX-License-Identifier: MIT
#pragma once

#include "app/Look.h"

#include <QSettings>
#include <QStringList>

class QMainWindow;
class QSplitter;

namespace leafcast {

/// What a window remembers from run to run, apart from the user's choices about books: its size,
/// its splitter, the last folders and the recent files. It has a file of its own.
class WindowMemory {
public:
    /// "leafcast/windows.ini" in the user's configuration folder.
    WindowMemory();
    explicit WindowMemory(const QString& filePath);

    /// False when nothing was remembered.
    bool restore(QMainWindow& window, QSplitter& splitter);
    void save(const QMainWindow& window, const QSplitter& splitter);

    Appearance appearance() const;
    void setAppearance(Appearance appearance);

    /// The last one first, those that are gone left out.
    QStringList recentFiles() const;
    void addRecentFile(const QString& path);
    void clearRecentFiles();

private:
    QSettings iSettings;
};

} // namespace leafcast
