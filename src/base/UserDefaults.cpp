// SPDX-License-Identifier: MIT
#include "base/UserDefaults.h"

#include "base/FileSteps.h"
#include "base/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int lockWaitMilliseconds = 5000;

    QString unusedNameBeside(const QString& path)
    {
        for (int i = 1;; ++i) {
            QString candidate = u"%1.damaged-%2"_s.arg(path, QString::number(i));
            if (!FileSteps::exists(candidate))
                return candidate;
        }
    }

    QString problemOfLock(QLockFile::LockError error)
    {
        switch (error) {
        case QLockFile::LockFailedError:
            return u"another process holds its lock"_s;
        case QLockFile::PermissionError:
            return u"its folder can't be written"_s;
        default:
            return u"its lock can't be made"_s;
        }
    }

} // namespace

UserDefaults::UserDefaults(const QString& filePath)
    : iFilePath(filePath)
{
    const Content content = readFile();
    iValues = content.values;
    if (content.state == FileState::Damaged)
        LOG_WARN(
            "UserDefaults", u"%1 is damaged (%2) and not used"_s.arg(iFilePath, content.damage));
}

UserDefaults& UserDefaults::standard()
{
    static UserDefaults defaults(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/leafcast/defaults.json"_s);
    return defaults;
}

QJsonValue UserDefaults::objectForKey(const QString& key) const
{
    const std::lock_guard guard(iMutex);
    const auto found = iValues.constFind(key);
    return found == iValues.constEnd() ? QJsonValue(QJsonValue::Undefined) : *found;
}

void UserDefaults::setObject(const QString& key, const QJsonValue& value)
{
    const std::lock_guard guard(iMutex);
    if (iValues.contains(key) && iValues.value(key) == value)
        return;
    iValues.insert(key, value);
    iChangedKeys.insert(key);
}

void UserDefaults::synchronize()
{
    const std::lock_guard guard(iMutex);
    if (!FileSteps::makeFolders(QFileInfo(iFilePath).path()))
        return;
    QLockFile otherProcesses(iFilePath + u".lock"_s);
    if (!otherProcesses.tryLock(lockWaitMilliseconds)) {
        LOG_WARN("UserDefaults",
            u"can't save %1: %2"_s.arg(iFilePath, problemOfLock(otherProcesses.error())));
        return;
    }
    auto [merged, state, damage] = readFile();
    if (state == FileState::Unreadable || (state == FileState::Damaged && !setAside(damage)))
        return;
    for (const QString& key : std::as_const(iChangedKeys))
        merged.insert(key, iValues.value(key));
    if (!FileSteps::writeAtomically(iFilePath, QJsonDocument(merged).toJson()))
        return;
    iValues = merged;
    iChangedKeys.clear();
}

UserDefaults::Content UserDefaults::readFile() const
{
    if (!QFileInfo::exists(iFilePath))
        return {};
    const auto bytes = FileSteps::read(iFilePath);
    if (!bytes)
        return { {}, FileState::Unreadable, {} };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(*bytes, &error);
    if (document.isObject())
        return { document.object(), FileState::Usable, {} };
    return { {}, FileState::Damaged, error.error ? error.errorString() : u"it holds no object"_s };
}

bool UserDefaults::setAside(const QString& damage) const
{
    const QString asideName = unusedNameBeside(iFilePath);
    const bool moved = QFile::rename(iFilePath, asideName);
    LOG_WARN("UserDefaults",
        u"%1 is damaged (%2); %3"_s.arg(iFilePath, damage,
            moved ? u"set aside as "_s + asideName : u"it could not be set aside"_s));
    return moved;
}

} // namespace leafcast
