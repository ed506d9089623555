// SPDX-License-Identifier: MIT
#pragma once

#include "app/Leafcast_for_iPad_MacAppDelegate.h"
#include "app/MainWindow.h"
#include "base/NotificationCenter.h"

#include <atomic>
#include <functional>
#include <QDialog>
#include <QDir>
#include <QSemaphore>
#include <QVariant>

namespace leafcast {

/// The real program on the screen of an X server, to be driven by the object names of its controls
/// and photographed as people see it, frames of the window manager included. Whatever is waited for
/// is a state; one that does not come about ends the program with its description.
class Stage {
public:
    Stage(const QDir& pictures, Appearance appearance);
    ~Stage();

    MainWindow& window() const { return *iDelegate.window(); }

    const std::shared_ptr<FlashPageSource>& book() const { return iDelegate.flashPageSource(); }

    template <typename Control> Control& control(const QString& name, QWidget& in) const
    {
        auto* found = in.findChild<Control*>(name);
        if (!found)
            fail(QStringLiteral("there is no ") + name);
        return *found;
    }
    /// The one dialog that lies above the others.
    QDialog& sheet() const;

    void waitFor(const QString& what, const std::function<bool()>& isSo) const;
    /// Until the book is drawn, with the page at that place open.
    void waitForBook(int place) const;
    /// Until another one than is shown while this is called, after the action.
    void waitForNextBook(const std::function<void()>& action) const;
    void openPage(int place) const;
    void waitForNoSheet() const;

    /// Once the screen stands still; a sheet on its own too, into the folder "sheets".
    void photograph(const QString& name);

    [[noreturn]] static void fail(const QString& why);

private:
    void fillTheScreen();
    void waitForFrame(const QWidget& widget) const;
    QVariant inBook(const QString& script) const;
    void save(const QImage& picture, const QString& file) const;

    QDir iPictures;
    int iCount = 0;
    Leafcast_for_iPad_MacAppDelegate iDelegate;
};

/// Holds the thread that posts a notification, at the position that it tells of.
class Hold {
public:
    Hold(const QString& notificationName, int pageIndex);
    ~Hold() { iEnd.release(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    bool isHolding() const { return iIsHolding; }

private:
    std::atomic<bool> iIsHolding = false;
    QSemaphore iEnd;
    NotificationCenter::Registration iRegistration;
};

} // namespace leafcast
