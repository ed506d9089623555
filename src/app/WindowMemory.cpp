// SPDX-License-Identifier: MIT
#include "app/WindowMemory.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QSplitter>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int mostRecentFiles = 10;
    const QString geometryKey = u"window/geometry"_s;
    const QString splitterKey = u"window/splitter"_s;
    const QString recentKey = u"recentFiles"_s;
    const QString appearanceKey = u"appearance"_s;
    const QStringList appearances = { u"system"_s, u"light"_s, u"dark"_s };

    QString standardFile()
    {
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + u"/leafcast/windows.ini"_s;
    }

} // namespace

WindowMemory::WindowMemory()
    : WindowMemory(standardFile())
{
}

WindowMemory::WindowMemory(const QString& filePath)
    : iSettings(filePath, QSettings::IniFormat)
{
}

bool WindowMemory::restore(QMainWindow& window, QSplitter& splitter)
{
    splitter.restoreState(iSettings.value(splitterKey).toByteArray());
    return window.restoreGeometry(iSettings.value(geometryKey).toByteArray());
}

void WindowMemory::save(const QMainWindow& window, const QSplitter& splitter)
{
    iSettings.setValue(geometryKey, window.saveGeometry());
    iSettings.setValue(splitterKey, splitter.saveState());
}

Appearance WindowMemory::appearance() const
{
    const auto at = appearances.indexOf(iSettings.value(appearanceKey).toString());
    return static_cast<Appearance>(std::max<qsizetype>(at, 0));
}

void WindowMemory::setAppearance(Appearance appearance)
{
    iSettings.setValue(appearanceKey, appearances[static_cast<int>(appearance)]);
}

QStringList WindowMemory::recentFiles() const
{
    QStringList files = iSettings.value(recentKey).toStringList();
    files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
    return files;
}

void WindowMemory::addRecentFile(const QString& path)
{
    QStringList files = iSettings.value(recentKey).toStringList();
    files.removeAll(path);
    files.prepend(path);
    iSettings.setValue(recentKey, files.mid(0, mostRecentFiles));
}

void WindowMemory::clearRecentFiles()
{
    iSettings.remove(recentKey);
}

} // namespace leafcast
