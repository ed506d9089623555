// SPDX-License-Identifier: MIT
#include "base/NotificationCenter.h"

#include <utility>
#include <vector>

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
    const std::lock_guard lock(iMutex);
    const int id = iNextId++;
    iEntries.emplace(id, Entry{ name, std::make_shared<const Observer>(std::move(observer)) });
    return Registration(this, id);
}

void NotificationCenter::post(const QString& name, const QVariantMap& userInfo)
{
    std::vector<std::shared_ptr<const Observer>> observers;
    {
        const std::lock_guard lock(iMutex);
        for (const auto& [id, entry] : iEntries)
            if (entry.name == name)
                observers.push_back(entry.observer);
    }
    const Notification notification{ name, userInfo };
    for (const auto& observer : observers)
        (*observer)(notification);
}

void NotificationCenter::removeObserver(int id)
{
    const std::lock_guard lock(iMutex);
    iEntries.erase(id);
}

} // namespace leafcast
