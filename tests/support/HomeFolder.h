// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardPaths>
#include <QTemporaryDir>

namespace leafcast {

/// Takes the place of the user's home folder, with whatever programs keep there, while it lives.
class HomeFolder {
public:
    HomeFolder()
        : iFormerHome(qgetenv("HOME"))
        , iFormerShared(qgetenv("XDG_DATA_DIRS"))
    {
        qputenv("HOME", iFolder.path().toUtf8());
        const QByteArray others = iFormerShared.isEmpty() ? "/usr/share" : iFormerShared;
        qputenv("XDG_DATA_DIRS", path(QStringLiteral("shared")).toUtf8() + ':' + others);
    }
    ~HomeFolder()
    {
        qputenv("HOME", iFormerHome);
        qputenv("XDG_DATA_DIRS", iFormerShared);
    }
    HomeFolder(const HomeFolder&) = delete;
    HomeFolder& operator=(const HomeFolder&) = delete;

    QString path(const QString& relativePath) const { return iFolder.filePath(relativePath); }
    static QString dataFolder()
    {
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    }

private:
    QTemporaryDir iFolder;
    QByteArray iFormerHome;
    QByteArray iFormerShared;
};

} // namespace leafcast
