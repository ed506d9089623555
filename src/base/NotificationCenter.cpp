// SPDX-License-Identifier: MIT
#include "base/NotificationCenter.h"

#include <utility>

namespace leafcast {

NotificationCenter::Registration& NotificationCenter::Registration::operator=(
    Registration&& other) noexcept
{
    std::swap(iCenter, other.iCenter);
    std::swap(iId, other.iId);
    return *this;
}

NotificationCenter::Registration::~Registration()
{
    if (iCenter)
        iCenter->removeObserver(iId);
}

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

NotificationCenter::Registration NotificationCenter::addObserver(
    const QString& name, Observer observer)
{
    const auto entry = std::make_shared<Entry>();
    entry->name = name;
    entry->observer = std::move(observer);
    const std::lock_guard lock(iMutex);
    const int id = iNextId++;
    iEntries.emplace(id, entry);
    return Registration(this, id);
}

void NotificationCenter::post(const QString& name, const QVariantMap& userInfo)
{
    const Notification notification{ name, userInfo };
    for (const auto& entry : observersOf(name)) {
        const std::lock_guard running(entry->running);
        if (!entry->isEnded)
            entry->observer(notification);
    }
}

std::vector<std::shared_ptr<NotificationCenter::Entry>> NotificationCenter::observersOf(
    const QString& name)
{
    const std::lock_guard lock(iMutex);
    std::vector<std::shared_ptr<Entry>> found;
    for (const auto& [id, entry] : iEntries)
        if (entry->name == name)
            found.push_back(entry);
    return found;
}

void NotificationCenter::removeObserver(int id)
{
    std::unique_lock lock(iMutex);
    const auto removed = iEntries.extract(id);
    lock.unlock(); // a call under way may need it before it ends
    const std::lock_guard running(removed.mapped()->running);
    removed.mapped()->isEnded = true;
}

} // namespace leafcast
