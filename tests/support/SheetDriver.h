// SPDX-License-Identifier: MIT
#pragma once

#include "settings/AppSettings.h"
#include "support/Gate.h"

#include <gtest/gtest.h>
#include <memory>
#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
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

    QTemporaryDir folder;
    UserDefaults defaults{ folder.filePath(QStringLiteral("defaults.json")) };
    AppSettings settings{ defaults };
    std::unique_ptr<Sheet> sheet;
};

} // namespace leafcast
