// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <QString>
#include <QVariantMap>
#include <vector>

namespace leafcast {

struct Notification {
    QString name;
    QVariantMap userInfo;
};

/// Carries notifications from posters to observers who do not know each other. Posting is
/// synchronous: observers run on the poster's thread, in the order of their registration, and pass
/// on to another thread themselves; one observer runs on one thread at a time. Safe on any thread;
/// an observer may register, unregister (itself too) and post, but no two observers to each other
/// from two threads: each would wait for the other.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    /// Ends the observation when it is destroyed: once that is done, the observer is not running on
    /// another thread, nor will it. So a thread that ends it may hold nothing that the observer
    /// waits for.
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
        Observer observer;
        std::recursive_mutex running; // guards the call and isEnded
        bool isEnded = false;
    };

    std::vector<std::shared_ptr<Entry>> observersOf(const QString& name);
    void removeObserver(int id);

    std::mutex iMutex;
    std::map<int, std::shared_ptr<Entry>> iEntries; // by id, which is in the order of registration
    int iNextId = 1;
};

} // namespace leafcast
