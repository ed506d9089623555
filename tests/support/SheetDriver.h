// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCenter.h"
#include "settings/AppSettings.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

namespace leafcast {

/// What a test of a sheet has: the sheet over settings of its own, driven by the object names of
/// its controls.
template <typename Sheet> class SheetDriver {
protected:
    void openSheet()
    {
        sheet = std::make_unique<Sheet>(nullptr, settings);
        sheet->open();
    }

    template <typename Control> Control* control(const char* name) const
    {
        auto* found = sheet->template findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void click(const char* name) const { control<QAbstractButton>(name)->click(); }
    void type(const char* name, const QString& text) const
    {
        control<QLineEdit>(name)->setText(text);
    }
    QString typed(const char* name) const { return control<QLineEdit>(name)->text(); }

    /// What the sheet says; empty while it says nothing.
    QString info() const
    {
        const auto* label = control<QLabel>("lblInfo");
        return label->isVisible() ? label->text() : QString();
    }

    template <typename Condition> static void waitFor(Condition condition)
    {
        constexpr int patienceMilliseconds = 60'000;
        ASSERT_TRUE(QTest::qWaitFor(condition, patienceMilliseconds));
    }
    int waitForResult() const
    {
        waitFor([this] { return !sheet->isVisible(); });
        return sheet->result();
    }

    /// Holds a worker at a notification of that name and position, after the sheet's
    /// own observer, until it is opened.
    class Gate {
    public:
        Gate(const QString& name, int pageIndex)
            : iRegistration(NotificationCenter::defaultCenter().addObserver(
                name, [this, pageIndex](const Notification& notification) {
                    if (notification.userInfo.value(QStringLiteral("pageIndex")).toInt()
                        != pageIndex)
                        return;
                    iReached = true;
                    iOpened.acquire();
                }))
        {
        }
        ~Gate() { open(); }
        Gate(const Gate&) = delete;
        Gate& operator=(const Gate&) = delete;

        bool isReached() const { return iReached; }
        /// For good.
        void open() { iOpened.release(1000); }

    private:
        std::atomic<bool> iReached = false;
        QSemaphore iOpened;
        NotificationCenter::Registration iRegistration;
    };

    QTemporaryDir folder;
    UserDefaults defaults{ folder.filePath(QStringLiteral("defaults.json")) };
    AppSettings settings{ defaults };
    std::unique_ptr<Sheet> sheet;
};

} // namespace leafcast
