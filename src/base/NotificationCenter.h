// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <QString>
#include <QVariantMap>

namespace leafcast {

struct Notification {
    QString name;
    QVariantMap userInfo;
};

/// Carries notifications from posters to observers who do not know each other. Posting is
/// synchronous: observers run on the poster's thread, in the order of their registration, and pass
/// on to another thread themselves. Safe on any thread; an observer may register, unregister and
/// post.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    /// Ends the observation when it is destroyed.
    class Registration {
    public:
        Registration() = default;
        Registration(NotificationCenter* center, int id)
            : iCenter(center)
            , iId(id)
        {
        }
        Registration(Registration&& other) noexcept { *this = std::move(other); }
        Registration& operator=(Registration&& other) noexcept;
        ~Registration();

    private:
        NotificationCenter* iCenter = nullptr;
        int iId = 0;
    };

    static NotificationCenter& defaultCenter();

    [[nodiscard]] Registration addObserver(const QString& name, Observer observer);
    void post(const QString& name, const QVariantMap& userInfo = {});

private:
    struct Entry {
        QString name;
        std::shared_ptr<const Observer> observer;
    };

    void removeObserver(int id);

    std::mutex iMutex;
    std::map<int, Entry> iEntries;
    int iNextId = 1;
};

} // namespace leafcast
